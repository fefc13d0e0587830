// The check window before recording: each check's mark and what the coach's
// answer, by mouse or keyboard, gives back.

#include "fakes/FakePlatform.h"
#include "stats/ui/finalCheckScrn.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class TestFinalCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answer_data()
    {
        QTest::addColumn<QString>("checks");
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("recorded");
        QTest::newRow("record with crosses") << "1010" << "click record" << true;
        QTest::newRow("cancel") << "1111" << "click cancel" << false;
        QTest::newRow("escape cancels") << "0000" << "escape" << false;
        QTest::newRow("return cancels") << "1111" << "return" << false;
        QTest::newRow("space on record") << "0111" << "space record" << true;
    }
    void answer()
    {
        QFETCH(QString, checks);
        QFETCH(QString, action);
        fakes::FakePlatform fake;
        finalCheckScrn window;
        std::array<bool, 4> passed {};
        for (int i = 0; i < 4; ++i)
            passed[i] = checks.at(i) == u'1';

        QString marks;
        QTimer::singleShot(0, &window, [&] {
            for (int i = 0; i < 4; ++i) {
                marks += window.checkCnv[i]->passed() ? u'1' : u'0';
                QCOMPARE(window.checkCnv[i]->accessibleName(),
                         (passed[i] ? "Passed: " : "Failed: ") + finalCheckScrn::checkTexts()[i]);
            }
            if (action == u"click record")
                QTest::mouseClick(window.recordBtn, Qt::LeftButton);
            else if (action == u"click cancel")
                QTest::mouseClick(window.cancelBtn, Qt::LeftButton);
            else if (action == u"escape")
                QTest::keyClick(&window, Qt::Key_Escape);
            else if (action == u"return")
                QTest::keyClick(&window, Qt::Key_Return);
            else if (action == u"space record") {
                window.recordBtn->setFocus();
                QTest::keyClick(window.recordBtn, Qt::Key_Space);
            }
        });
        QTEST(window.showMe(passed), "recorded");
        QCOMPARE(marks, checks);
        QCOMPARE(window.checkLabel[1]->text(), QStringLiteral("Three outs recorded in every inning"));
    }
};

QTEST_MAIN(TestFinalCheck)
#include "tst_finalcheck.moc"
