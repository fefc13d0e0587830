// The plus-and-minus pair, the help button, the heading label, the name
// prompt, the wait window and the number-key rule on a field, each driven
// with the mouse and the keyboard.

#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "support/HelpRequests.h"
#include "support/ui/NumberKeyFilter.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/getInfoScrn_small.h"
#include "support/ui/myInfoBtn.h"
#include "support/ui/pleaseWaitScrn.h"
#include "support/ui/qlmLabel.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class TestButtonsAndWindows : public QObject
{
    Q_OBJECT

private:
    // A window with a field, the pair and another field, shown and active,
    // so that Tab runs through all three.
    struct PairWindow
    {
        QWidget window;
        QLineEdit *before = new QLineEdit;
        PlusMinusContainer *pair = new PlusMinusContainer;
        QLineEdit *after = new QLineEdit;

        PairWindow()
        {
            auto *layout = new QHBoxLayout(&window);
            layout->addWidget(before);
            layout->addWidget(pair);
            layout->addWidget(after);
            window.show();
            window.activateWindow();
        }
    };

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void plusMinusHalvesApart()
    {
        PairWindow w;
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QSignalSpy plus(w.pair, &PlusMinusContainer::PlusPressed);
        QSignalSpy minus(w.pair, &PlusMinusContainer::MinusPressed);
        QTest::mouseClick(w.pair, Qt::LeftButton, {}, QPoint(8, 11));
        QCOMPARE(plus.count(), 1);
        // A click doesn't take the focus from where the user types.
        QVERIFY(!w.pair->hasFocus());
        const QImage normal = w.pair->grab().toImage();
        w.pair->setPlusEnabled(false);
        QTest::mousePress(w.pair, Qt::LeftButton, {}, QPoint(8, 11));
        QVERIFY(!w.pair->pushPlus());
        QTest::mouseRelease(w.pair, Qt::LeftButton, {}, QPoint(8, 11));
        QCOMPARE(plus.count(), 1);
        QTest::mouseClick(w.pair, Qt::LeftButton, {}, QPoint(36, 11));
        QCOMPARE(minus.count(), 1);
        // The left half shows disabled, the right half as before.
        const QImage shown = w.pair->grab().toImage();
        QVERIFY(shown.copy(0, 0, 22, 22) != normal.copy(0, 0, 22, 22));
        QCOMPARE(shown.copy(23, 0, 22, 22), normal.copy(23, 0, 22, 22));
    }

    void plusMinusInTheBackground()
    {
        PairWindow w;
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QSignalSpy plus(w.pair, &PlusMinusContainer::PlusPressed);
        const QImage active = w.pair->grab().toImage();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QTRY_VERIFY(!w.pair->windowEnabled());
        QVERIFY(w.pair->grab().toImage() != active);
        w.window.activateWindow();
        QTRY_VERIFY(w.pair->windowEnabled());
        QCOMPARE(w.pair->grab().toImage(), active);
        // Set by hand, it holds until the window's activation changes.
        w.pair->SetWindowEnabled(false);
        QTest::mouseClick(w.pair, Qt::LeftButton, {}, QPoint(8, 11));
        QCOMPARE(plus.count(), 1); // the press finds the window active
    }

    void plusMinusKeyboard()
    {
        PairWindow w;
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QSignalSpy plus(w.pair, &PlusMinusContainer::PlusPressed);
        QSignalSpy minus(w.pair, &PlusMinusContainer::MinusPressed);
        w.before->setFocus();
        QTest::keyClick(w.before, Qt::Key_Tab);
        QVERIFY(w.pair->hasFocus());
        QCOMPARE(w.pair->focusedbutton(), 1);

        // Space on plus: shown pressed, raised once, let go after a moment.
        QTest::keyClick(w.pair, Qt::Key_Space);
        QCOMPARE(plus.count(), 1);
        QVERIFY(w.pair->pushPlus());
        QTRY_VERIFY(!w.pair->pushPlus());

        QTest::keyClick(w.pair, Qt::Key_Tab);
        QVERIFY(w.pair->hasFocus());
        QCOMPARE(w.pair->focusedbutton(), 2);
        QTest::keyClick(w.pair, Qt::Key_Space);
        QCOMPARE(minus.count(), 1);
        QTRY_VERIFY(!w.pair->pushMinus());

        QTest::keyClick(w.pair, Qt::Key_Tab);
        QVERIFY(w.after->hasFocus());
        QCOMPARE(w.pair->focusedbutton(), 0);

        // Back in with Shift+Tab: onto minus, then plus, then out.
        QTest::keyClick(w.after, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(w.pair->focusedbutton(), 2);
        QTest::keyClick(w.pair, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(w.pair->focusedbutton(), 1);
        QTest::keyClick(w.pair, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(w.before->hasFocus());

        // A disabled half is skipped; with neither, Tab passes the pair by.
        w.pair->setPlusEnabled(false);
        QTest::keyClick(w.before, Qt::Key_Tab);
        QCOMPARE(w.pair->focusedbutton(), 2);
        w.pair->setMinusEnabled(false);
        w.before->setFocus();
        QTest::keyClick(w.before, Qt::Key_Tab);
        QVERIFY(w.after->hasFocus());
        QCOMPARE(plus.count(), 1);
        QCOMPARE(minus.count(), 1);
    }

    void infoButtonAsksForItsTopic()
    {
        auto &requests = support::HelpRequests::instance();
        {
            // With no help window listening the button is off.
            myInfoBtn lonely(2);
            lonely.show();
            QVERIFY(!lonely.isEnabled());
        }
        QSignalSpy asked(&requests, &support::HelpRequests::requested);
        myInfoBtn button(11);
        QCOMPARE(button.accessibleName(), QStringLiteral("Help"));
        button.resize(24, 24);
        button.show();
        QVERIFY(button.isEnabled());
        const QImage up = button.grab().toImage();
        QTest::mousePress(&button, Qt::LeftButton);
        // Pushed 2 pixels right and down while held.
        const QImage down = button.grab().toImage();
        QCOMPARE(down.copy(2, 2, 20, 20), up.copy(0, 0, 20, 20));
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.at(0).at(0).toInt(), 11);
        QCOMPARE(button.grab().toImage(), up);

        // The keyboard asks too.
        button.setHelpDest(13);
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(asked.count(), 2);
        QCOMPARE(asked.at(1).at(0).toInt(), 13);
    }

    void headingLabel()
    {
        qlmLabel label(QStringLiteral("The Team List"));
        label.resize(300, 28);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("The Team List"));
        const QImage before = label.grab().toImage();
        label.setMyText(QStringLiteral("Players"));
        QCOMPARE(label.myText(), QStringLiteral("Players"));
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Players"));
        const QImage after = label.grab().toImage();
        QVERIFY(before != after);
        // The text is drawn in its light colour, centred.
        int left = after.width(), right = -1;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x) {
                if (after.pixelColor(x, y) == qlmLabel::textColour()) {
                    left = qMin(left, x);
                    right = qMax(right, x);
                }
            }
        }
        QVERIFY(right > left);
        QVERIFY(qAbs((left + right) / 2 - 150) <= 3);
    }

    void namePrompt_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<QString>("result");
        QTest::newRow("a name") << "Tuesday drills" << false << "Tuesday drills";
        QTest::newRow("cancel") << "Tuesday drills" << true << "";
    }
    void namePrompt()
    {
        QFETCH(QString, typed);
        QFETCH(bool, cancel);
        QFETCH(QString, result);
        fakes::FakePlatform fake;
        getInfoScrn_small prompt;
        bool warnedOnBlank = false;
        QTimer::singleShot(0, &prompt, [&] {
            // Save with a blank field: the warning, a beep, and still open.
            QTest::keyClicks(testkit::child<QLineEdit>(&prompt, "dataFld"), QStringLiteral("   "));
            QTest::mouseClick(testkit::child<QPushButton>(&prompt, "saveBtn"), Qt::LeftButton);
            warnedOnBlank = testkit::child<QLabel>(&prompt, "warningLbl")->isVisible() && prompt.isVisible() &&
                            fake.beeper.beeps == 1;
            testkit::child<QLineEdit>(&prompt, "dataFld")->clear();
            QTest::keyClicks(testkit::child<QLineEdit>(&prompt, "dataFld"), typed);
            QVERIFY(!testkit::child<QLabel>(&prompt, "warningLbl")->isVisible());
            if (cancel)
                QTest::keyClick(testkit::child<QLineEdit>(&prompt, "dataFld"), Qt::Key_Escape);
            else
                QTest::keyClick(testkit::child<QLineEdit>(&prompt, "dataFld"), Qt::Key_Return);
        });
        QCOMPARE(prompt.getMyInfo(), result);
        QVERIFY(warnedOnBlank);
        QCOMPARE(prompt.myData(), result);
        auto *buddy = prompt.findChild<QLabel *>(QStringLiteral("promptLbl"));
        QVERIFY(buddy && buddy->buddy() == testkit::child<QLineEdit>(&prompt, "dataFld"));
    }

    void waitWindow()
    {
        QWidget screen;
        screen.show();
        auto *wait = new pleaseWaitScrn(&screen, QStringLiteral("Setting up the game"));
        wait->showNow();
        QVERIFY(wait->isVisible());
        QCOMPARE(QApplication::overrideCursor() ? QApplication::overrideCursor()->shape() : Qt::ArrowCursor,
                 Qt::BusyCursor);
        QCOMPARE(testkit::child<QLabel>(wait, "detailLbl")->text(), QStringLiteral("Setting up the game"));
        wait->close();
        QVERIFY(QApplication::overrideCursor() == nullptr);
        // Deleted while shown, it gives the pointer back too.
        wait->showNow();
        QVERIFY(QApplication::overrideCursor() != nullptr);
        delete wait;
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void numberFieldKeys()
    {
        fakes::FakePlatform fake;
        QLineEdit runs;
        QLineEdit quantity;
        support::NumberKeyFilter *filter = support::NumberKeyFilter::install(&runs);
        support::NumberKeyFilter::install(&quantity, {.floorAtZero = false});
        qRegisterMetaType<QLineEdit *>();
        QSignalSpy stepped(filter, &support::NumberKeyFilter::stepped);

        QTest::keyClicks(&runs, QStringLiteral("1x2"));
        QCOMPARE(runs.text(), QStringLiteral("12"));
        QCOMPARE(fake.beeper.beeps, 1);
        QTest::keyClick(&runs, Qt::Key_Plus, Qt::NoModifier);
        QCOMPARE(runs.text(), QStringLiteral("13"));
        runs.setText(QStringLiteral("0"));
        QTest::keyClick(&runs, Qt::Key_Minus);
        QCOMPARE(runs.text(), QStringLiteral("0"));
        QCOMPARE(stepped.count(), 2);
        QTest::keyClick(&runs, Qt::Key_Backspace);
        QCOMPARE(runs.text(), QString());

        QTest::keyClick(&quantity, Qt::Key_Minus);
        QTest::keyClick(&quantity, Qt::Key_Minus);
        QCOMPARE(quantity.text(), QStringLiteral("-2"));
        QCOMPARE(fake.beeper.beeps, 1);
    }
};

QTEST_MAIN(TestButtonsAndWindows)
#include "tst_buttonsAndWindows.moc"
