// A window with every shared control in its usual states, to try them by
// hand or to take the picture of them for the documentation:
//   tl_control_gallery                 shows the window
//   tl_control_gallery --grab out.png  writes the window to a PNG and quits

#include "platform/qt/QtServices.h"
#include "support/HelpRequests.h"
#include "support/ui/NumberKeyFilter.h"
#include "support/ui/PlusMinusContainer.h"
#include "support/ui/getInfoScrn_small.h"
#include "support/ui/iPhoneField.h"
#include "support/ui/myInfoBtn.h"
#include "support/ui/pleaseWaitScrn.h"
#include "support/ui/qlmCheckBox.h"
#include "support/ui/qlmLabel.h"

#include <QApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <cstdio>

namespace {

QGroupBox *box(const QString &title, QLayout *layout)
{
    auto *group = new QGroupBox(title);
    group->setLayout(layout);
    return group;
}

// A caption over a plus-and-minus pair.
QWidget *pairWithCaption(PlusMinusContainer *pair, const QString &caption)
{
    auto *holder = new QWidget;
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(pair, 0, Qt::AlignHCenter);
    auto *label = new QLabel(caption);
    label->setAlignment(Qt::AlignHCenter);
    layout->addWidget(label);
    return holder;
}

struct Gallery
{
    QWidget window;
    PlusMinusContainer *focusedPair = nullptr;
    PlusMinusContainer *pressedPair = nullptr;
    PlusMinusContainer *background = nullptr;

    Gallery()
    {
        window.setWindowTitle(QStringLiteral("Shared controls"));
        auto *page = new QVBoxLayout(&window);

        auto *heading = new QHBoxLayout;
        auto *title = new qlmLabel(QStringLiteral("The Team List"));
        title->setObjectName(QStringLiteral("ListTitle"));
        heading->addWidget(title, 1);
        auto *help = new myInfoBtn(2);
        help->setObjectName(QStringLiteral("helpBtn"));
        heading->addWidget(help);
        page->addLayout(heading);

        auto *checks = new QVBoxLayout;
        auto *active = new qlmCheckBox(QStringLiteral("Active"));
        active->setObjectName(QStringLiteral("activeCheck"));
        active->setValue(true);
        auto *home = new qlmCheckBox(QStringLiteral("Make this the home team"));
        home->setObjectName(QStringLiteral("homeTeamBox"));
        checks->addWidget(active);
        checks->addWidget(home);
        auto *radios = new QVBoxLayout;
        QList<qlmCheckBox *> group;
        for (const char *caption : {"Home game", "Away game", "Neutral field"}) {
            auto *b = new qlmCheckBox(QString::fromLatin1(caption));
            radios->addWidget(b);
            group.append(b);
        }
        qlmCheckBox::makeGroup(group);
        group[1]->setValue(true);
        auto *boxes = new QHBoxLayout;
        boxes->addWidget(box(QStringLiteral("Check boxes"), checks));
        boxes->addWidget(box(QStringLiteral("A group of three"), radios));
        page->addLayout(boxes);

        auto *fields = new QFormLayout;
        const struct
        {
            const char *label, *typed;
        } phones[] = {{"&Phone:", "6145551234"}, {"&Cell:", "5551234"}, {"&Long distance:", "16145551234"}};
        for (const auto &p : phones) {
            auto *field = new iPhoneField;
            field->setText(QString::fromLatin1(p.typed));
            field->HandleFormat();
            auto *label = new QLabel(QString::fromLatin1(p.label));
            label->setBuddy(field);
            fields->addRow(label, field);
        }
        auto *runs = new QLineEdit(QStringLiteral("3"));
        support::NumberKeyFilter::install(runs);
        auto *runsLabel = new QLabel(QStringLiteral("&Runs (+/-):"));
        runsLabel->setBuddy(runs);
        fields->addRow(runsLabel, runs);
        page->addWidget(box(QStringLiteral("Phone and number fields"), fields));

        auto *pairs = new QHBoxLayout;
        auto *normal = new PlusMinusContainer;
        normal->setHalfNames(QStringLiteral("New team"), QStringLiteral("Delete team"));
        pairs->addWidget(pairWithCaption(normal, QStringLiteral("Both halves")));
        auto *noPlus = new PlusMinusContainer;
        noPlus->setPlusEnabled(false);
        pairs->addWidget(pairWithCaption(noPlus, QStringLiteral("Plus off")));
        pressedPair = new PlusMinusContainer;
        pairs->addWidget(pairWithCaption(pressedPair, QStringLiteral("Plus pressed")));
        focusedPair = new PlusMinusContainer;
        pairs->addWidget(pairWithCaption(focusedPair, QStringLiteral("Keyboard on minus")));
        background = new PlusMinusContainer;
        pairs->addWidget(pairWithCaption(background, QStringLiteral("Window behind")));
        page->addWidget(box(QStringLiteral("Plus and minus"), pairs));

        auto *windows = new QHBoxLayout;
        auto *prompt = new getInfoScrn_small(nullptr, QStringLiteral("Plan name:"));
        prompt->setWindowFlags(Qt::Widget);
        prompt->findChild<QLabel *>(QStringLiteral("warningLbl"))->setVisible(true);
        windows->addWidget(box(QStringLiteral("getInfoScrn_small, saved blank"), new QVBoxLayout));
        windows->itemAt(0)->widget()->layout()->addWidget(prompt);
        auto *wait = new pleaseWaitScrn(nullptr, QStringLiteral("Setting up the game screen"));
        wait->setWindowFlags(Qt::Widget);
        windows->addWidget(box(QStringLiteral("pleaseWaitScrn"), new QVBoxLayout));
        windows->itemAt(1)->widget()->layout()->addWidget(wait);
        page->addLayout(windows);
    }

    // Puts the pairs into the states their captions name.
    void stage()
    {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(8, 11), pressedPair->mapToGlobal(QPointF(8, 11)),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pressedPair, &press);
        focusedPair->setFocus(Qt::TabFocusReason);
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(focusedPair, &tab);
        // As its window going behind another would.
        background->SetWindowEnabled(false);
    }
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    platform::qt::QtServices desktop;
    platform::ScopedServices installed(desktop.services());
    // No help window here: a listener turns the help button on.
    QObject::connect(&support::HelpRequests::instance(), &support::HelpRequests::requested, &app,
                     [](int topic) { std::printf("help asked for topic %d\n", topic); });

    Gallery gallery;
    gallery.window.show();
    gallery.window.activateWindow();
    const QStringList args = QApplication::arguments();
    const qsizetype grab = args.indexOf(QStringLiteral("--grab"));
    if (grab < 0)
        return QApplication::exec();
    if (grab + 1 >= args.size()) {
        std::fprintf(stderr, "usage: %s [--grab out.png]\n", argv[0]);
        return 2;
    }
    QApplication::processEvents();
    gallery.stage();
    QApplication::processEvents();
    if (!gallery.window.grab().save(args.at(grab + 1), "PNG")) {
        std::fprintf(stderr, "could not write %s\n", qPrintable(args.at(grab + 1)));
        return 1;
    }
    return 0;
}
