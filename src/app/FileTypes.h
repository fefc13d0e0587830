#pragma once

#include <QString>
#include <QStringList>

// The kinds of file the program reads and writes. On this desktop a type is
// known by its file-name extensions; the classic type and creator codes are
// kept for reference only.
struct FileType
{
    QString name;
    QStringList extensions; // without the dot, lower case
    QString macType;
    QString creator;
    QStringList identifiers; // MIME types or uniform type identifiers

    // A file dialog filter such as "all_picts (*.gif *.jpg ...)".
    QString nameFilter() const;
    // True when `fileName` ends in one of the extensions (any case).
    bool matches(const QString &fileName) const;
};

namespace FileTypes {

extern const FileType pJpg;
extern const FileType pJpeg;
extern const FileType pGif;
extern const FileType pBmp;
extern const FileType pPng;
extern const FileType pDatabase;
extern const FileType pPrefs;
extern const FileType pAllPicts;
extern const FileType pText;
extern const FileType pRtf;
extern const FileType pPdf;
extern const FileType pPlanFile;

inline const FileType &AllPicts()
{
    return pAllPicts;
}
inline const FileType &PlanFile()
{
    return pPlanFile;
}

// A season file is recognised by the database type's extension.
bool isSeasonFile(const QString &fileName);

} // namespace FileTypes
