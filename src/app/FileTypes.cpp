#include "app/FileTypes.h"

namespace {

QStringList exts(const char *list)
{
    QStringList out;
    for (QString e : QString::fromLatin1(list).split(u';', Qt::SkipEmptyParts)) {
        if (e.startsWith(u'.'))
            e.remove(0, 1);
        out.append(e.toLower());
    }
    return out;
}

FileType make(const char *name, const char *extensions, const char *type, const char *creator,
              QStringList identifiers = {})
{
    return {QString::fromLatin1(name), exts(extensions), QString::fromLatin1(type), QString::fromLatin1(creator),
            std::move(identifiers)};
}

} // namespace

QString FileType::nameFilter() const
{
    QStringList patterns;
    for (const QString &e : extensions)
        patterns.append(QStringLiteral("*.") + e);
    return name + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

bool FileType::matches(const QString &fileName) const
{
    for (const QString &e : extensions) {
        if (fileName.endsWith(u'.' + e, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

namespace FileTypes {

const FileType pJpg = make("jpg", "jpg", "", "", {QStringLiteral("image/jpg")});
const FileType pJpeg = make("jpeg", "jpeg", "", "", {QStringLiteral("image/jpeg")});
const FileType pGif = make("gif", "gif", "", "", {QStringLiteral("image/gif")});
const FileType pBmp = make("bmp", "bmp", "", "", {QStringLiteral("image/bmp")});
const FileType pPng = make("png", "png", "", "", {QStringLiteral("image/png")});
const FileType pDatabase = make("database", ".sqlite", "rbd", "tlyn", {QStringLiteral("public.data")});
const FileType pPrefs = make("prefs", ".pref", "pref", "tlyn", {QStringLiteral("public.data")});
const FileType pAllPicts = make("all_picts",
                                ".gif;.jfif;.jpe;.jpeg;.jpg;.png;.jfx;.tif;.tiff;.bmp;.dib;.mac;.pict;.pic;.pct;.pdf",
                                "JPEG", "prvw");
const FileType pText = make("text/plain",
                            ".txt;.ascii;.bas;.c;.class;.cp;.cpp;.h;.hp;.hpp;.i3;.java;.m2;.m3;.mak;.text;.txt", "TEXT",
                            "????", {QStringLiteral("public.text")});
const FileType pRtf = make("application/rtf", ".rtf", "TEXT", "MSWD", {QStringLiteral("public.rtf")});
const FileType pPdf = make("application/pdf", ".pdf", "PDF ", "prvw", {QStringLiteral("com.adobe.pdf")});
const FileType pPlanFile = make("PlanFile", ".pplan", "PPL", "",
                                {QStringLiteral("public.data"), QStringLiteral("com.quillmere.tlyn.pplan")});

bool isSeasonFile(const QString &fileName)
{
    return pDatabase.matches(fileName);
}

} // namespace FileTypes
