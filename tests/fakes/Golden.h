#pragma once

// Golden files: what a test produces, compared with a file kept under
// tests/data. With TL_UPDATE_GOLDEN=1 in the environment the file is
// written anew from what the test produced (check the difference in git
// before committing it).
//
//     TL_COMPARE_GOLDEN("reports/batting_export.txt", written);

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

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

// A golden case: a file "<name>.case" in a folder under tests/data. Above a
// line "---" it says what to do, one "key: value" a line, in order ("#"
// starts a comment); below it is the output expected. With
// TL_UPDATE_GOLDEN=1 the part below is written anew.
struct GoldenCase
{
    QString name;                            // "standings/ties.case"
    QByteArray head;                         // up to and with the "---" line
    QList<QPair<QString, QString>> commands; // in the file's order

    QString value(const QString &key) const; // the first of that key, or ""
    QStringList values(const QString &key) const;
};

// One data row per case of each tests/data/<folder>, in a column "name".
void addGoldenCases(const QStringList &folders);
// Reads a case named by addGoldenCases(); fails the running test (and
// gives false) when the file is missing or has no "---" line.
bool readGoldenCase(const QString &name, GoldenCase &out, const char *file, int line);

} // namespace testkit

#define TL_COMPARE_GOLDEN(name, actual)                                                                                \
    do {                                                                                                               \
        if (!testkit::compareGolden((name), (actual), __FILE__, __LINE__))                                             \
            return;                                                                                                    \
    } while (false)

// Fetches the row's case into a GoldenCase named `var`.
#define TL_FETCH_CASE(var)                                                                                             \
    QFETCH(QString, name);                                                                                             \
    testkit::GoldenCase var;                                                                                           \
    if (!testkit::readGoldenCase(name, var, __FILE__, __LINE__))                                                       \
    return

// Compares the output below the case's "---" line.
#define TL_COMPARE_CASE(goldenCase, actual) TL_COMPARE_GOLDEN((goldenCase).name, (goldenCase).head + (actual))
