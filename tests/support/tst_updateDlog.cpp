// The update check and download as the coach meets them, and the error
// report's mail.

#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "platform/qt/QtHttp.h"
#include "support/cAutoUpdate.h"
#include "support/ui/expReporterScrn.h"
#include "support/ui/updateDlog.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QUrlQuery>
#include <QtTest>

namespace {

// Serves one body to every request on the loopback address, slowly enough
// that progress shows; or never answers.
class LoopbackServer : public QTcpServer
{
public:
    QByteArray body;
    bool answer = true;

    LoopbackServer() { listen(QHostAddress::LocalHost); }
    QString url() const { return QStringLiteral("http://127.0.0.1:%1/file.tar.gz").arg(serverPort()); }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *socket = new QTcpSocket(this);
        socket->setSocketDescriptor(handle);
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            if (!answer)
                return;
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/octet-stream\r\nContent-Length: " +
                          QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n");
            socket->write(body);
            socket->disconnectFromHost();
        });
    }
};

const QString kDocument = QStringLiteral("http://updates.test/version.txt");

} // namespace

class tst_UpdateDlog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void check_data()
    {
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("action");
        QTest::newRow("newer") << QByteArray("<version>9.0.0</version><description>Faster</description>")
                               << "Version 9.0.0 of Tallyline Baseball is available."
                               << "Update Now";
        QTest::newRow("same") << QByteArray("<version>" TL_PROJECT_VERSION "</version>")
                              << "Your Copy Of Tallyline Baseball Is Up To Date!"
                              << "Close";
        QTest::newRow("no page") << QByteArray() << "Your Copy Of Tallyline Baseball Is Up To Date!"
                                 << "Close";
    }

    void check()
    {
        QFETCH(QByteArray, page);
        QFETCH(QString, shown);
        QFETCH(QString, action);
        fakes::FakePlatform fake;
        if (!page.isEmpty())
            fake.http.pages.insert(kDocument, page);
        auto *dlog = new updateDlog;
        dlog->updater->documentUrl = kDocument;
        dlog->show();
        QCOMPARE(testkit::child<QLabel>(dlog, "updatetext")->text(), QStringLiteral("Checking..."));
        QTRY_COMPARE(testkit::child<QLabel>(dlog, "updatetext")->text(), shown);
        QCOMPARE(testkit::child<QPushButton>(dlog, "actionBtn")->text(), action);
        QCOMPARE(testkit::child<QPushButton>(dlog, "cancelBtn")->isVisible(), action == u"Update Now");
        delete dlog;
    }

    void silentServerEndsAtTheLimit()
    {
        fakes::FakePlatform fake;
        fake.http.silent = true;
        auto *dlog = new updateDlog;
        dlog->updater->documentUrl = kDocument;
        dlog->updater->timeoutMs = 300;
        dlog->show();
        // The window answers while the check waits.
        QTest::qWait(100);
        QCOMPARE(testkit::child<QLabel>(dlog, "updatetext")->text(), QStringLiteral("Checking..."));
        QTRY_COMPARE_WITH_TIMEOUT(testkit::child<QLabel>(dlog, "updatetext")->text(), cAutoUpdate::upToDateMessage(),
                                  2000);
        delete dlog;
    }

    void downloadFromLoopback()
    {
        fakes::FakePlatform fake;
        platform::qt::QtHttpService network;
        fake.http.pages.insert(kDocument, QByteArray("<version>9.0.0</version><name>Tallyline 9</name><url>") +
                                              QByteArray("URL") + "</url>");
        LoopbackServer server;
        server.body = QByteArray(1572864, 'x');
        fake.http.pages[kDocument].replace("URL", server.url().toUtf8());
        QTemporaryDir dir;
        const QString target = dir.filePath(QStringLiteral("new.tar.gz"));
        fake.files.answers.enqueue(target);

        auto *dlog = new updateDlog;
        dlog->updater->documentUrl = kDocument;
        dlog->show();
        QTRY_VERIFY(testkit::child<QPushButton>(dlog, "actionBtn")->isEnabled());
        // The check went through the fake; the download goes over the wire.
        platform::Services services = platform::installed();
        services.http = &network;
        platform::ScopedServices real(services);
        QTest::mouseClick(testkit::child<QPushButton>(dlog, "actionBtn"), Qt::LeftButton);
        QCOMPARE(fake.files.calls.last().request.suggestedName,
                 QStringLiteral("Tallyline_Baseball_9.0.0_update.tar.gz"));
        QCOMPARE(fake.files.calls.last().request.prompt, QStringLiteral("Select the Save Location"));
        wAutoUpdate *window = nullptr;
        for (QWidget *w : QApplication::topLevelWidgets())
            if (auto *found = qobject_cast<wAutoUpdate *>(w))
                window = found;
        QVERIFY(window);
        QCOMPARE(testkit::child<QLabel>(window, "stTitle")->text(), QStringLiteral("Tallyline 9"));
        QString lastProgress;
        connect(window->Updater, &cAutoUpdate::downloadProgress, this,
                [&] { lastProgress = testkit::child<QLabel>(window, "stProgress")->text(); });
        QPointer<wAutoUpdate> guard(window);
        // Done, it says where the file went and leads there.
        QTRY_VERIFY_WITH_TIMEOUT(testkit::child<QPushButton>(window, "btnShowFolder")->isVisible(), 10000);
        QCOMPARE(lastProgress, QStringLiteral("1.5 MB of 1.5 MB"));
        QCOMPARE(QFileInfo(target).size(), 1572864);
        QCOMPARE(testkit::child<QLabel>(window, "stTitle")->text(), QStringLiteral("The update was saved as \"") +
                                                                        QDir::toNativeSeparators(target) +
                                                                        QStringLiteral("\"."));
        QTest::mouseClick(testkit::child<QPushButton>(window, "btnShowFolder"), Qt::LeftButton);
        QCOMPARE(fake.files.revealed, QStringList{target});
        QCOMPARE(testkit::child<QPushButton>(window, "btnCancel")->text(), QStringLiteral("Close"));
        QTest::mouseClick(testkit::child<QPushButton>(window, "btnCancel"), Qt::LeftButton);
        QTRY_VERIFY(!guard);
        QCOMPARE(QFileInfo(target).size(), 1572864);
    }

    void cancelledDownloadLeavesNoFile()
    {
        fakes::FakePlatform fake;
        platform::qt::QtHttpService network;
        platform::Services services = platform::installed();
        services.http = &network;
        platform::ScopedServices real(services);
        LoopbackServer server;
        server.answer = false;
        QTemporaryDir dir;
        const QString target = dir.filePath(QStringLiteral("new.tar.gz"));
        auto *window = new wAutoUpdate;
        auto *updater = new cAutoUpdate;
        updater->UpdateURL = server.url();
        window->Associate(updater);
        window->show();
        updater->Update(target);
        QTest::qWait(100);
        QTest::mouseClick(testkit::child<QPushButton>(window, "btnCancel"), Qt::LeftButton);
        QTest::qWait(100);
        QVERIFY(!QFileInfo::exists(target));
        QVERIFY(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }

    void errorReportMail()
    {
        fakes::FakePlatform fake;
        const QString text = expReporterScrn::reportText(QStringLiteral("OutOfBoundsException"),
                                                         {QStringLiteral("Sub teamScrn.save( string )")});
        expReporterScrn report(text);
        testkit::child<QPlainTextEdit>(&report, "errFld")->appendPlainText(QStringLiteral("Tom & Jerry's #1 100%? ok"));
        QTest::mouseClick(testkit::child<QPushButton>(&report, "reportBtn"), Qt::LeftButton);
        QCOMPARE(fake.urls.opened.size(), 1);
        const QUrl mail = fake.urls.opened.first();
        QCOMPARE(mail.scheme(), QStringLiteral("mailto"));
        const QUrlQuery query(mail);
        QCOMPARE(query.allQueryItemValues(QStringLiteral("subject"), QUrl::FullyDecoded),
                 QStringList{QStringLiteral(TL_PROJECT_VERSION " error")});
        const QString body = query.queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded);
        // Line ends travel as mail's CR LF.
        QVERIFY(body.startsWith(QStringLiteral("Error: OutOfBoundsException\r\nSub teamScrn.save( string )\r\n"
                                               "Tallyline Baseball v." TL_PROJECT_VERSION "\r\n")));
        QVERIFY(body.endsWith(QStringLiteral(" *Please feel free to add your comments.\r\nTom & Jerry's #1 100%? ok")));
        QCOMPARE(testkit::child<QPushButton>(&report, "ignoreBtn")->text(), QStringLiteral("Continue"));
        QVERIFY(testkit::child<QPushButton>(&report, "reportBtn")->isHidden());
    }
};

QTEST_MAIN(tst_UpdateDlog)
#include "tst_updateDlog.moc"
