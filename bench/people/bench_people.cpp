// Saving a team whose logo didn't change, with a phone-photo-sized logo:
// the row is written back with its stored bytes, so the save costs about
// what the same UPDATE costs in plain SQLite. Rounds alternate, so both
// see the same machine load.

#include "app/App.h"
#include "app/globals.h"
#include "fakes/FakePlatform.h"
#include "people/Pictures.h"
#include "people/TeamStore.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

class BenchPeople : public QObject
{
    Q_OBJECT

    fakes::FakePlatform m_fake;
    QTemporaryDir m_home;
    std::unique_ptr<App> m_app;

private Q_SLOTS:
    void initTestCase()
    {
        m_app = std::make_unique<App>(m_home.path());
        QCOMPARE(m_app->Event_Open(), App::OpenResult::Ok);
    }

    void saveTeamWithUnchangedLogo()
    {
        // A noisy 1,024 x 1,024 picture: the largest a chosen logo becomes,
        // and hard to compress, as photos are.
        QImage logo(1024, 1024, QImage::Format_RGB32);
        for (int y = 0; y < logo.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(logo.scanLine(y));
            for (int x = 0; x < logo.width(); ++x)
                line[x] = qRgb((x * 7 + y * 13) % 256, (x * y) % 256, (x ^ y) % 256);
        }
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        buffer.open(QIODevice::WriteOnly);
        logo.save(&buffer, "JPEG", 90);
        const qint64 id = gData->insert(QStringLiteral("Teams"),
                                        {{QStringLiteral("TeamName"), QStringLiteral("Cougars")},
                                         {QStringLiteral("TeamLogo"), jpeg}});
        people::TeamStore store(*gData);
        people::TeamRecord team = *store.team(QString::number(id));

        QList<double> program, plain;
        for (int round = 0; round < 7; ++round) {
            QElapsedTimer t;
            t.start();
            QVERIFY(store.update(team));
            program.append(t.nsecsElapsed() / 1e6);

            t.restart();
            SQLite::Statement update(*gData->tlynData, "UPDATE Teams SET TeamName = ?, TeamLogo = ? WHERE teamID = ?");
            update.bind(1, "Cougars");
            update.bind(2, jpeg.constData(), int(jpeg.size()));
            update.bind(3, static_cast<int64_t>(id));
            update.exec();
            plain.append(t.nsecsElapsed() / 1e6);
        }
        QVERIFY(gData->scalar(QStringLiteral("SELECT TeamLogo FROM Teams")).toByteArray() == jpeg);
        QElapsedTimer t;
        t.start();
        QImage changed = team.TeamLogo;
        changed.setPixel(0, 0, qRgb(1, 2, 3));
        const QByteArray png = people::toPng(changed);
        const double encode = t.nsecsElapsed() / 1e6;

        std::sort(program.begin(), program.end());
        std::sort(plain.begin(), plain.end());
        const double p = program.at(3), b = plain.at(3);
        qInfo("plain SQLite UPDATE with the stored %lld KB:        %.1f ms", qint64(jpeg.size() / 1024), b);
        qInfo("TeamStore::update, logo unchanged:                %.1f ms  (%.2fx)", p, p / b);
        qInfo("for scale, encoding that logo as PNG (%lld KB):   %.1f ms", qint64(png.size() / 1024), encode);
    }
};

QTEST_GUILESS_MAIN(BenchPeople)
#include "bench_people.moc"
