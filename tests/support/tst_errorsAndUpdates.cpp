// The error report's readable stack and the update check's decisions.

#include "support/StackCleaner.h"
#include "support/UpdateCheck.h"

#include <QtTest>

#include <stdexcept>

namespace probe {
struct Roster
{
    // Kept out of line so that the frame names this routine.
    __attribute__((noinline)) void trade(QString &team, int games);
};
void Roster::trade(QString &team, int games)
{
    if (games > 0)
        throw std::out_of_range("no such player");
}
} // namespace probe

class tst_ErrorsAndUpdates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frames_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("line");
        QTest::newRow("start-up") << "% main"
                                  << "";
        QTest::newRow("not a frame") << "libc.so.6(+0x2718a) [0x7f]"
                                     << "";
        QTest::newRow("sub") << "foo.bar%%"
                             << "Sub foo.bar()";
        QTest::newRow("receiver goes") << "Foo.Bar%%o<Foo>i8"
                                       << "Sub Foo.Bar( int64 )";
        QTest::newRow("extends") << "$Bar%s%sb"
                                 << "Function Bar( extends string, boolean ) as string";
        QTest::newRow("event") << "Baz#%%A1s&i4"
                               << "Event Baz( string(), byref int32 )";
        QTest::newRow("function") << "monthlyCalendar.daysInMonth%i8%o<monthlyCalendar>i8i8"
                                  << "Function monthlyCalendar.daysInMonth( int64, int64 ) as int64";
        QTest::newRow("assigns and paramarray") << "Team.Name=%%o<Team>s"
                                                << "Sub Team.Name( assigns string )";
        QTest::newRow("paramarray") << "Log.Add*%%o<Log>A1s"
                                    << "Sub Log.Add( paramarray string() )";
        QTest::newRow("the event loop") << "libQt6Core.so.6(_ZN16QCoreApplication4execEv+0x99) [0x7f]"
                                        << "";
        QTest::newRow("the program's catch of events")
            << "tallyline(_ZN20TallylineApplication6notifyEP7QObjectP6QEvent+0x2a) [0x55]"
            << "";
    }

    void frames()
    {
        QFETCH(QString, frame);
        QFETCH(QString, line);
        QCOMPARE(StackCleaner::CleanMangledFunction(StackCleaner::frameFromSymbol(frame)), line);
    }

    void parameters_data()
    {
        QTest::addColumn<QString>("codes");
        QTest::addColumn<QStringList>("types");
        QTest::newRow("two-dimensional array") << "A2i8" << QStringList{"int64(,)"};
        QTest::newRow("every kind") << "u2f4f8cbso<Team>"
                                    << QStringList{"uint16", "single", "double", "color", "boolean", "string", "Team"};
        QTest::newRow("byref array") << "&A1s" << QStringList{"byref string()"};
        QTest::newRow("junk between types") << "?i4!" << QStringList{"int32"};
    }

    void parameters()
    {
        QFETCH(QString, codes);
        QFETCH(QStringList, types);
        QCOMPARE(StackCleaner::ParseParams(codes), types);
    }

    void whereAnErrorWasThrown()
    {
        probe::Roster roster;
        QString team = QStringLiteral("Hawks");
        std::exception_ptr error;
        try {
            roster.trade(team, 3);
        } catch (...) {
            error = std::current_exception();
        }
        QCOMPARE(TypeOfException(error), QStringLiteral("OutOfBoundsException"));
        const QStringList lines = StackCleaner::CleanStack(StackCleaner::framesOfLastThrow());
        // The routine that threw comes first, named as the report names it.
        QVERIFY2(!lines.isEmpty() && lines.first() == u"Sub Roster.trade( byref string, int32 )",
                 qPrintable(lines.join(u'\n')));
    }

    void exceptionKinds()
    {
        QCOMPARE(TypeOfException(std::make_exception_ptr(std::out_of_range("x"))),
                 QStringLiteral("OutOfBoundsException"));
        QCOMPARE(TypeOfException(std::make_exception_ptr(std::bad_alloc())), QStringLiteral("OutOfMemoryException"));
        QCOMPARE(TypeOfException(std::make_exception_ptr(std::runtime_error("x"))), QString());
        QCOMPARE(TypeOfException(std::make_exception_ptr(42)), QString());
    }

    void versions_data()
    {
        QTest::addColumn<QString>("running");
        QTest::addColumn<QString>("document");
        QTest::addColumn<bool>("offered");
        QTest::newRow("newer") << "2.2.0"
                               << "2.2.1" << true;
        QTest::newRow("same") << "2.2.0"
                              << "2.2.0" << false;
        QTest::newRow("older") << "2.2.0"
                               << "2.1.9" << false;
        QTest::newRow("text order") << "2.9.0"
                                    << "2.10.0" << false;
        QTest::newRow("no answer") << "2.2.0"
                                   << "" << false;
    }

    void versions()
    {
        QFETCH(QString, running);
        QFETCH(QString, document);
        QFETCH(bool, offered);
        QCOMPARE(UpdateCheck::isOffered(running, document), offered);
    }

    void versionDocument()
    {
        const QString page = QStringLiteral("<NAME>New</name><version>2.3.0</version><url>http://x/a.tar.gz</url>"
                                            "<version>9</version>");
        QCOMPARE(UpdateCheck::ParseKey(QStringLiteral("version"), page), QStringLiteral("2.3.0"));
        QCOMPARE(UpdateCheck::ParseKey(QStringLiteral("name"), page), QStringLiteral("New"));
        QVERIFY(UpdateCheck::ParseKey(QStringLiteral("description"), page).isEmpty());
        QCOMPARE(UpdateCheck::suggestedFileName(QStringLiteral("2.3.0"), QStringLiteral("http://x/a.tar.gz")),
                 QStringLiteral("Tallyline_Baseball_2.3.0_update.tar.gz"));
        QCOMPARE(UpdateCheck::progressText(1572864, 1572864), QStringLiteral("1.5 MB of 1.5 MB"));
        QCOMPARE(UpdateCheck::megabytes(1234567), QStringLiteral("1.18"));
    }
};

QTEST_GUILESS_MAIN(tst_ErrorsAndUpdates)
#include "tst_errorsAndUpdates.moc"
