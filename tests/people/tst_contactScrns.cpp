// The contact window and the mail settings, driven as the coach drives
// them: one list's selection at a time, a message to the selected people,
// the printout, the settings' checks and where the password goes.

#include "app/App.h"
#include "app/globals.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "fakes/TestSupport.h"
#include "people/ui/contactInfoScrn.h"
#include "people/ui/emailInfoScrn.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/qlmCheckBox.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrlQuery>

class TestContactScrns : public QObject
{
    Q_OBJECT

    struct Session : testkit::Season
    {
        QString team = QString::number(addTeam(QStringLiteral("Ann & Bo's #1 Nine?"), {}, {}, true));
        qint64 bears = addTeam(QStringLiteral("Bears"));
        Session() : testkit::Season(false) {}
        void person(const char *table, const QString &first, const QString &email)
        {
            gData->insert(QString::fromLatin1(table), {{QStringLiteral("TeamNum"), team.toLongLong()},
                                                       {QStringLiteral("First"), first},
                                                       {QStringLiteral("Last"), QStringLiteral("Zed")},
                                                       {QStringLiteral("PhoneNumber"), QStringLiteral("6145551234")},
                                                       {QStringLiteral("Email"), email}});
        }
    };

    // Runs the settings dialog: `fill` types into it, OK is clicked; the
    // dialog's message line and whether it closed come back.
    static std::pair<QString, bool> runSettings(const std::function<void(emailInfoScrn *)> &fill)
    {
        emailInfoScrn dialog;
        QString message;
        bool closed = false;
        QTimer::singleShot(0, &dialog, [&] {
            fill(&dialog);
            QTest::mouseClick(testkit::child<QPushButton>(&dialog, "acceptBtn"), Qt::LeftButton);
            message = testkit::child<QLabel>(&dialog, "InfoFld")->text();
            closed = !dialog.isVisible();
            dialog.reject();
        });
        dialog.exec();
        return {message, closed};
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    // Selecting in one list clears the other; two players get one message
    // with the team's name as subject, read back exactly.
    void selectAndMail()
    {
        Session s;
        s.person("Players", QStringLiteral("Ann"), QStringLiteral("ann@example.org"));
        s.person("Players", QStringLiteral("Bo"), QStringLiteral("bo+team@example.org"));
        s.person("Players", QStringLiteral("Cy"), QString());
        s.person("Coaches", QStringLiteral("Dee"), QStringLiteral("dee@example.org"));
        auto *screen = new contactInfoScrn;
        QVERIFY(testkit::showActive(screen));
        QCOMPARE(testkit::child<QLabel>(screen, "teamIDFld")->text(), s.team);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 3);
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->cell(0, 2), QStringLiteral("(614) 555-1234"));
        QVERIFY(!testkit::child<QPushButton>(screen, "emailBtn")->isEnabled());

        testkit::child<qlmListBox>(screen, "coachesList")->setSelectedRow(0);
        QVERIFY(testkit::child<QPushButton>(screen, "emailBtn")->isEnabled());
        testkit::child<qlmListBox>(screen, "playersList")->setRowSelected(0, true);
        testkit::child<qlmListBox>(screen, "playersList")->setRowSelected(1, true);
        testkit::child<qlmListBox>(screen, "playersList")->setRowSelected(2, true); // Cy has no address
        QVERIFY(testkit::child<qlmListBox>(screen, "coachesList")->selectedRows().isEmpty());
        QTest::mouseClick(testkit::child<QPushButton>(screen, "emailBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.messages.texts(),
                 QStringList{QStringLiteral("Some of the people selected have no e-mail address.")});
        QCOMPARE(s.fake.messages.shown.first().explanation, QStringLiteral("Left out of the message: Cy Zed."));
        QCOMPARE(s.fake.urls.opened.size(), 1);
        const QUrl url = s.fake.urls.opened.first();
        QCOMPARE(QUrl::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8()),
                 QStringLiteral("ann@example.org,bo+team@example.org"));
        const QUrlQuery query(url);
        QCOMPARE(query.queryItems(QUrl::FullyDecoded).size(), 1);
        QCOMPARE(query.queryItemValue(QStringLiteral("subject"), QUrl::FullyDecoded),
                 QStringLiteral("Ann & Bo's #1 Nine?"));

        // Back to the coaches; the other team's lists are empty.
        testkit::child<qlmListBox>(screen, "coachesList")->setSelectedRow(0);
        QVERIFY(testkit::child<qlmListBox>(screen, "playersList")->selectedRows().isEmpty());
        QVERIFY(testkit::choose(testkit::child<QComboBox>(screen, "selectTeamPop"), QStringLiteral("Bears")));
        QCOMPARE(testkit::child<qlmListBox>(screen, "playersList")->rowCount(), 0);
        QVERIFY(!testkit::child<QPushButton>(screen, "emailBtn")->isEnabled());

        // The players' list prints.
        QVERIFY(
            testkit::choose(testkit::child<QComboBox>(screen, "selectTeamPop"), QStringLiteral("Ann & Bo's #1 Nine?")));
        QTest::mouseClick(testkit::child<QPushButton>(screen, "printBtn"), Qt::LeftButton);
        QCOMPARE(s.fake.printing.printed.size(), 1);
        QVERIFY(fakes::pdfText(s.fake.printing.printed.first()).contains(QStringLiteral("bo+team@example.org")));
    }

    // The settings' checks, first failure wins.
    void settingsMessages_data()
    {
        QTest::addColumn<QStringList>("entries"); // server, user, password
        QTest::addColumn<bool>("auth");
        QTest::addColumn<QString>("message");
        const QString server = QStringLiteral("smtp.example.org");
        const QString user = QStringLiteral("coach@example.org");
        QTest::newRow("no server") << QStringList{QStringLiteral("  "), QString(), QString()} << true
                                   << QStringLiteral("Please enter the SMTP server info.");
        QTest::newRow("no user") << QStringList{server, QString(), QString()} << true
                                 << QStringLiteral("Please enter a valid user name.");
        QTest::newRow("not an address") << QStringList{server, QStringLiteral("coach at home"), QString()} << true
                                        << QStringLiteral("The email address you entered does not appear to be valid.");
        QTest::newRow("no password") << QStringList{server, user, QString()} << true
                                     << QStringLiteral("Please enter the email password.");
        QTest::newRow("no password needed") << QStringList{server, user, QString()} << false << QString();
        QTest::newRow("all there") << QStringList{server, user, QStringLiteral("pw")} << true << QString();
    }
    void settingsMessages()
    {
        QFETCH(QStringList, entries);
        QFETCH(bool, auth);
        QFETCH(QString, message);
        Session s;
        const auto [shown, closed] = runSettings([&](emailInfoScrn *d) {
            testkit::child<QLineEdit>(d, "serverFld")->setText(entries[0]);
            testkit::child<QLineEdit>(d, "usernameFld")->setText(entries[1]);
            testkit::child<QLineEdit>(d, "passwordFld")->setText(entries[2]);
            testkit::child<qlmCheckBox>(d, "authReqBox")->setChecked(auth);
        });
        QCOMPARE(shown, message);
        QCOMPARE(closed, message.isEmpty());
        QCOMPARE(gPrefs->prEmailServer.isEmpty(), !message.isEmpty());
    }

    // The password goes to the secret store and never into the preference
    // file; without a store it lasts the session and the window says so.
    void passwordNeverOnDisk_data()
    {
        QTest::addColumn<bool>("storeAnswers");
        QTest::newRow("secret store") << true;
        QTest::newRow("no secret store") << false;
    }
    void passwordNeverOnDisk()
    {
        QFETCH(bool, storeAnswers);
        Session s;
        s.fake.secrets.answers = storeAnswers;
        // Blanks at either end are part of it.
        const QString password = QStringLiteral("  Sl1der&Curve#9 ");
        // An older version left a password in the file; the start moves it.
        gPrefs->prEmailPW = QStringLiteral("older-version-pw");
        people::MailSettings::moveOldPassword(*gPrefs);
        QVERIFY(gPrefs->prEmailPW.isEmpty());
        QVERIFY(gPrefs->prefsDirty);
        QCOMPARE(s.fake.secrets.secrets.value(QStringLiteral("mail password")),
                 storeAnswers ? QStringLiteral("older-version-pw") : QString());
        gPrefs->prefsDirty = false;
        QString note;
        const auto [shown, closed] = runSettings([&](emailInfoScrn *d) {
            note = testkit::child<QLabel>(d, "storeNoteLbl")->isVisible()
                       ? testkit::child<QLabel>(d, "storeNoteLbl")->text()
                       : QString();
            QCOMPARE(testkit::child<QLineEdit>(d, "passwordFld")->text(), QStringLiteral("older-version-pw"));
            testkit::child<QLineEdit>(d, "serverFld")->setText(QStringLiteral(" smtp.example.org "));
            testkit::child<QLineEdit>(d, "usernameFld")->setText(QStringLiteral("coach@example.org"));
            testkit::child<QLineEdit>(d, "passwordFld")->setText(password);
            testkit::child<QLineEdit>(d, "portFld")->setText(QStringLiteral("587"));
            testkit::child<qlmCheckBox>(d, "authReqBox")->setChecked(true);
        });
        QVERIFY(closed);
        QCOMPARE(note.isEmpty(), storeAnswers);
        QCOMPARE(gPrefs->prEmailServer, QStringLiteral("smtp.example.org"));
        QCOMPARE(gPrefs->prEmailPort, quint16(587));
        QVERIFY(gPrefs->prefsDirty);
        QCOMPARE(s.fake.secrets.secrets.value(QStringLiteral("mail password")), storeAnswers ? password : QString());

        gPrefs->writePrefs();
        QFile file(gPrefs->prefsFilePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(!bytes.contains(password.toUtf8()));
        QVERIFY(!bytes.contains(password.toUtf8().toBase64()));
        QVERIFY(!bytes.contains(QByteArray("older-version-pw").toBase64()));
        QVERIFY(bytes.contains(QByteArray("smtp.example.org").toBase64()));

        // Opened again, the window shows the password from where it went.
        runSettings([&](emailInfoScrn *d) {
            QCOMPARE(testkit::child<QLineEdit>(d, "passwordFld")->text(), password);
            QCOMPARE(testkit::child<QLineEdit>(d, "portFld")->text(), QStringLiteral("587"));
        });
    }
};

QTEST_MAIN(TestContactScrns)
#include "tst_contactScrns.moc"
