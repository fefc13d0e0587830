// The shared controls driven as a user drives them: keys typed one by one,
// text pasted, clicks and Space on the drawn check boxes.

#include "fakes/FakePlatform.h"
#include "fakes/TestKit.h"
#include "support/ui/iPhoneField.h"
#include "support/ui/qlmCheckBox.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class TestSharedControls : public QObject
{
    Q_OBJECT

private:
    // A shown window holding `control`, so that focus and painting work.
    static std::unique_ptr<QWidget> windowWith(QWidget *control)
    {
        auto window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(window.get());
        layout->addWidget(control);
        window->show();
        control->setFocus();
        return window;
    }

private Q_SLOTS:
    // Whatever a function left open, also when it failed half-way, goes
    // before the next one starts.
    void cleanup() { testkit::closeAllWindows(); }

    void phoneTypedKeyByKey_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("digits");
        QTest::addColumn<int>("beeps");
        QTest::newRow("7 digits") << "5551234"
                                  << "555-1234"
                                  << "5551234" << 0;
        QTest::newRow("10 digits") << "6145551234"
                                   << "(614) 555-1234"
                                   << "6145551234" << 0;
        QTest::newRow("11 digits") << "16145551234"
                                   << "1 (614) 555-1234"
                                   << "16145551234" << 0;
        QTest::newRow("a 12th digit is refused") << "161455512349"
                                                 << "1 (614) 555-1234"
                                                 << "16145551234" << 1;
        QTest::newRow("letters and spaces refused") << "555 CAKE"
                                                    << "555"
                                                    << "555" << 5;
        QTest::newRow("own separators put right") << "(614)555-1234"
                                                  << "(614) 555-1234"
                                                  << "6145551234" << 0;
    }
    void phoneTypedKeyByKey()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QString, digits);
        QFETCH(int, beeps);
        fakes::FakePlatform fake;
        auto *field = new iPhoneField;
        auto window = windowWith(field);
        QSignalSpy dirty(field, &iPhoneField::makeDirty);

        QStringList seen;
        for (QChar c : typed) {
            QTest::keyClick(field, c.toLatin1());
            seen.append(field->text());
        }
        QCOMPARE(field->text(), shown);
        QCOMPARE(field->sFieldValue(), digits);
        QCOMPARE(fake.beeper.beeps, beeps);
        QVERIFY(dirty.count() >= 1);
        // Each key let go shows the format for the digits so far.
        if (typed == u"6145551234") {
            QCOMPARE(seen, (QStringList{"6", "61", "614", "614-5", "614-55", "614-555", "614-5551", "(614) 555-12",
                                        "(614) 555-123", "(614) 555-1234"}));
        }
    }

    void phonePastedWithLetters()
    {
        fakes::FakePlatform fake;
        auto *field = new iPhoneField;
        auto window = windowWith(field);
        QSignalSpy dirty(field, &iPhoneField::makeDirty);

        // By the keyboard shortcut: the digits are gathered when the key is
        // let go.
        QApplication::clipboard()->setText(QStringLiteral("Call 614-555-CAKE, ext 1234"));
        QTest::keySequence(field, QKeySequence::Paste);
        QCOMPARE(field->sFieldValue(), QStringLiteral("6145551234"));
        QCOMPARE(field->text(), QStringLiteral("(614) 555-1234"));
        QCOMPARE(fake.beeper.beeps, 0);
        QCOMPARE(dirty.count(), 1);

        // From the context menu: no key at all.
        field->clear();
        QApplication::clipboard()->setText(QStringLiteral("tel. 555 12 34"));
        field->paste();
        QCOMPARE(field->text(), QStringLiteral("555-1234"));
        QCOMPARE(field->sFieldValue(), QStringLiteral("5551234"));
        QCOMPARE(dirty.count(), 2);
    }

    void phoneBackspace()
    {
        fakes::FakePlatform fake;
        auto *field = new iPhoneField;
        auto window = windowWith(field);
        QTest::keyClicks(field, QStringLiteral("5551"));
        QCOMPARE(field->text(), QStringLiteral("555-1"));
        QTest::keyClick(field, Qt::Key_Backspace);
        QCOMPARE(field->sFieldValue(), QStringLiteral("555"));
        QCOMPARE(field->text(), QStringLiteral("555"));

        // Backspace behind the dash takes the digit before it, so the key
        // never seems to do nothing.
        field->setText(QStringLiteral("555-1234"));
        field->setCursorPosition(4);
        QTest::keyClick(field, Qt::Key_Backspace);
        QCOMPARE(field->text(), QStringLiteral("551-234"));
        QCOMPARE(field->cursorPosition(), 2);
    }

    void phoneFromCode()
    {
        auto *field = new iPhoneField;
        auto window = windowWith(field);
        QSignalSpy dirty(field, &iPhoneField::makeDirty);
        // A stored number is shown as it was stored.
        field->setText(QStringLiteral("614.555.1234"));
        QCOMPARE(field->text(), QStringLiteral("614.555.1234"));
        QCOMPARE(field->sFieldValue(), QStringLiteral("6145551234"));
        field->HandleFormat();
        QCOMPARE(field->text(), QStringLiteral("(614) 555-1234"));
        field->clear();
        QCOMPARE(field->sFieldValue(), QString());
        QCOMPARE(dirty.count(), 0);
    }

    void checkBoxGroupOfThree()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        QList<qlmCheckBox *> boxes;
        for (const char *caption : {"Home", "Away", "Neutral"}) {
            auto *box = new qlmCheckBox(QString::fromLatin1(caption));
            layout->addWidget(box);
            boxes.append(box);
        }
        qlmCheckBox::makeGroup(boxes);
        boxes[0]->setValue(true);
        window.show();
        QSignalSpy up0(boxes[0], &qlmCheckBox::MouseUp);
        QSignalSpy up1(boxes[1], &qlmCheckBox::MouseUp);
        QSignalSpy up2(boxes[2], &qlmCheckBox::MouseUp);
        QCOMPARE(boxes[1]->groupTotal(), 2);

        const auto values = [&] { return QList<bool>{boxes[0]->value(), boxes[1]->value(), boxes[2]->value()}; };
        QTest::mouseClick(boxes[1], Qt::LeftButton);
        QCOMPARE(values(), (QList<bool>{false, true, false}));
        QCOMPARE(up1.count(), 1);
        QCOMPARE(up0.count() + up2.count(), 0);

        // The box that is on takes no press: nothing changes, no MouseUp.
        QTest::mouseClick(boxes[1], Qt::LeftButton);
        QCOMPARE(values(), (QList<bool>{false, true, false}));
        QCOMPARE(up1.count(), 1);

        // Space on the third, from the keyboard.
        boxes[2]->setFocus();
        QTest::keyClick(boxes[2], Qt::Key_Space);
        QCOMPARE(values(), (QList<bool>{false, false, true}));
        QCOMPARE(up2.count(), 1);
        QTest::keyClick(boxes[2], Qt::Key_Space);
        QCOMPARE(values(), (QList<bool>{false, false, true}));
        QCOMPARE(up2.count(), 1);

        // A press the box took flips it on release, even when let go outside.
        QTest::mousePress(boxes[0], Qt::LeftButton, {}, QPoint(5, 5));
        QTest::mouseRelease(boxes[0], Qt::LeftButton, {}, QPoint(5, boxes[0]->height() + 40));
        QCOMPARE(values(), (QList<bool>{true, false, false}));
        QCOMPARE(up0.count(), 1);
        QTest::mouseClick(boxes[2], Qt::LeftButton);
        QCOMPARE(values(), (QList<bool>{false, false, true}));

        // Assistive tools see radio buttons, and can't turn off the one that is on.
        QAccessibleInterface *third = QAccessible::queryAccessibleInterface(boxes[2]);
        QCOMPARE(third->role(), QAccessible::RadioButton);
        QVERIFY(third->state().checked);
        third->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(boxes[2]->value());
        QCOMPARE(up2.count(), 2);

        // From code, the group keeps one box on, without MouseUp.
        boxes[0]->setValue(true);
        QCOMPARE(values(), (QList<bool>{true, false, false}));
        QCOMPARE(up0.count(), 1);
    }

    void loneCheckBox()
    {
        qlmCheckBox box(QStringLiteral("Active"));
        box.show();
        QSignalSpy up(&box, &qlmCheckBox::MouseUp);
        QCOMPARE(box.groupTotal(), 0);
        QTest::mouseClick(&box, Qt::LeftButton);
        QVERIFY(box.value());
        QTest::mouseClick(&box, Qt::LeftButton);
        QVERIFY(!box.value());
        QCOMPARE(up.count(), 2);
        // The caption stands where the layout rule puts it.
        box.resize(120, 20);
        QCOMPARE(box.myTextLeft(), 26);
        QCOMPARE(box.myBaseLine(), 16.0);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&box);
        QVERIFY(accessible);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Active"));
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QVERIFY(!accessible->state().checked);
        // An assistive tool's toggle is a click like any other.
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(box.value());
        QVERIFY(accessible->state().checked);
        QCOMPARE(up.count(), 3);
    }

    void checkBoxDrawsItsValue()
    {
        qlmCheckBox box(QStringLiteral("Assistant"));
        box.resize(110, 20);
        QImage on(8, 8, QImage::Format_ARGB32);
        on.fill(Qt::red);
        QImage off(8, 8, QImage::Format_ARGB32);
        off.fill(Qt::blue);
        box.setPictures(on, off);
        QImage shot = box.grab().toImage();
        QCOMPARE(shot.pixelColor(10, 10), QColor(Qt::blue));
        box.setValue(true);
        shot = box.grab().toImage();
        QCOMPARE(shot.pixelColor(10, 10), QColor(Qt::red));
        // The box fills the control's height, and no more.
        QCOMPARE(shot.pixelColor(19, 19), QColor(Qt::red));
        QVERIFY(shot.pixelColor(22, 10) != QColor(Qt::red));
    }

    void picturesAreBuiltIn()
    {
        qlmCheckBox box;
        QVERIFY(!box.myValuePict().isNull());
        QVERIFY(!box.myUnselPict().isNull());
        QVERIFY(box.myValuePict() != box.myUnselPict());
    }
};

QTEST_MAIN(TestSharedControls)
#include "tst_sharedControls.moc"
