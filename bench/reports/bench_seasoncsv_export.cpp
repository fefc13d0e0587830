// The exporting process of bench_seasoncsv: writes the season's CSV file.
//   bench_seasoncsv_export <season file> <csv file>
// The season is opened as the sqlite3 shell opens it, without the
// program's check at opening: in the program the season is open already.

#include "app/myDictionaries.h"
#include "reports/SeasonCsv.h"

#include <SQLiteCpp/Database.h>

#include <QFile>

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    myDictionaries::initHitting();
    myDictionaries::initFielding();
    myDictionaries::initPitching();
    SQLite::Database db(argv[1], SQLite::OPEN_READONLY);
    QFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly))
        return 2;
    const QByteArray text = reports::seasonCsv(db);
    return out.write(text) == text.size() && !text.isEmpty() ? 0 : 1;
}
