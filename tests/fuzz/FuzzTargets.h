#pragma once

// What each fuzz target does with one input. The fuzzers (built with clang
// and libFuzzer when TALLYLINE_FUZZ is on) and the ordinary replay test of
// their corpora both call these, so every input that once found a fault
// stays a test.

#include "app/myPrefs.h"
#include "help/HtmlText.h"
#include "support/StackCleaner.h"
#include "support/UpdateCheck.h"

#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

namespace fuzz {

inline QString text(const uint8_t *data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
}

inline void htmlText(const uint8_t *data, size_t size)
{
    help::HtmlText page;
    page.Render(text(data, size));
    // Every range must lie inside the text it styles.
    for (const QStringList *list : {&page.bolds, &page.italics, &page.headers, &page.fonts, &page.colors,
                                    &page.sizes, &page.links}) {
        for (const QString &entry : *list) {
            const int start = entry.section(u'\t', 0, 0).toInt();
            const int end = entry.section(u'\t', 1, 1).toInt();
            if (start < 0 || end < start || end > page.text.size())
                __builtin_trap();
        }
    }
}

inline void stackFrame(const uint8_t *data, size_t size)
{
    const QString frame = text(data, size);
    StackCleaner::CleanMangledFunction(frame);
    StackCleaner::ParseParams(frame);
    StackCleaner::frameFromSymbol(frame);
}

inline void versionDocument(const uint8_t *data, size_t size)
{
    const QString page = text(data, size);
    for (const char *key : {"version", "url", "name", "description"})
        UpdateCheck::ParseKey(QString::fromLatin1(key), page);
    UpdateCheck::isOffered(QStringLiteral("2.2.0"), UpdateCheck::ParseKey(QStringLiteral("version"), page));
}

inline void prefsFile(const uint8_t *data, size_t size)
{
    static QTemporaryDir home;
    static myPrefs prefs(home.path());
    prefs.initPrefs();
    prefs.decode(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    // Whatever was read must write back without failing.
    prefs.encode();
}

} // namespace fuzz
