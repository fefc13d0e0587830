#pragma once

// Golden files: what a test produces, compared with a file kept under
// tests/data. With TL_UPDATE_GOLDEN=1 in the environment the file is
// written anew from what the test produced (check the difference in git
// before committing it).
//
//     TL_COMPARE_GOLDEN("reports/batting_export.txt", written);

#include <QByteArray>
#include <QString>

namespace testkit {

// The path of a golden file under tests/data.
QString goldenPath(const QString &name);
// Compares `actual` with the golden file `name`; a difference fails the
// running test, naming the first line that differs. Gives false then.
bool compareGolden(const QString &name, const QByteArray &actual, const char *file, int line);
inline bool compareGolden(const QString &name, const QString &actual, const char *file, int line)
{
    return compareGolden(name, actual.toUtf8(), file, line);
}

} // namespace testkit

#define TL_COMPARE_GOLDEN(name, actual)                                                                                \
    do {                                                                                                               \
        if (!testkit::compareGolden((name), (actual), __FILE__, __LINE__))                                             \
            return;                                                                                                    \
    } while (false)
