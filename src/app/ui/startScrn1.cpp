#include "app/ui/startScrn1.h"

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/AboutScrn.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
QPointer<startScrn1> g_startScreen;
const QString kSelectSeason = QStringLiteral("Select Season");

// The screens from which a coach types into the season.
bool writesSeason(ScreenId target)
{
    return target == ScreenId::teamScrn || target == ScreenId::personnelScrn || target == ScreenId::scheduleScrn ||
           target == ScreenId::InventoryScrn || target == ScreenId::eventsCalendarScrn ||
           target == ScreenId::contactInfoScrn;
}
} // namespace

LogoCanvas::LogoCanvas(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("LogoHolder"));
    setAccessibleName(QStringLiteral("Home team logo"));
    setFixedSize(160, 160);
}

void LogoCanvas::setPicture(const QImage &picture)
{
    m_picture = picture;
    update();
}

void LogoCanvas::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (m_picture.isNull()) {
        // An empty frame keeps the layout steady until a home team has a logo.
        p.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
        p.drawRoundedRect(rect().adjusted(1, 1, -2, -2), 8, 8);
        return;
    }
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize scaled = m_picture.size().scaled(size(), Qt::KeepAspectRatio);
    const QRect target(QPoint((width() - scaled.width()) / 2, (height() - scaled.height()) / 2), scaled);
    p.drawImage(target, m_picture);
}

startScrn1::startScrn1(QWidget *parent)
    : ScreenBase(ScreenId::startScrn1, u"Tallyline Baseball"_s, {.backupTimer = false, .returnToStart = false}, parent)
{
    g_startScreen = this;
    auto *central = new QWidget(this);
    setCentralWidget(central);

    LogoHolder = new LogoCanvas(central);
    teamNameLabel = form::valueLabel(central, u"teamNameLabel"_s, u"Home team"_s);
    QFont nameFont = teamNameLabel->font();
    nameFont.setPointSize(nameFont.pointSize() + 4);
    nameFont.setBold(true);
    teamNameLabel->setFont(nameFont);
    teamNameLabel->setWordWrap(true);
    teamNameLabel->setAlignment(Qt::AlignCenter);
    teamNameLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    SelectSeasonPop = form::comboBox(central, u"SelectSeasonPop"_s, u"Season"_s);
    QLabel *seasonLabel = form::buddyLabel(SelectSeasonPop, u"&Season:"_s, central);
    seasonLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    helpBtn = form::button(central, u"helpBtn"_s, u"?"_s, u"Help"_s);
    helpBtn->setToolTip(u"Help for this screen"_s);
    helpBtn->setFixedWidth(32);
    helpBtn->setEnabled(screens::has(ScreenId::helpScrn2));
    connect(helpBtn, &QPushButton::clicked, this, [] {
        // The start screen's help is the getting-started page.
        if (QWidget *help = screens::create(ScreenId::helpScrn2, 1))
            help->show();
    });
    auto *left = new QVBoxLayout;
    left->addWidget(LogoHolder, 0, Qt::AlignHCenter);
    left->addWidget(teamNameLabel);
    left->addSpacing(12);
    left->addWidget(seasonLabel);
    left->addWidget(SelectSeasonPop);
    seasonProblemLabel = new QLabel(central);
    seasonProblemLabel->setObjectName(QStringLiteral("seasonProblemLabel"));
    seasonProblemLabel->setWordWrap(true);
    seasonProblemLabel->setMaximumWidth(220);
    seasonProblemLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    seasonProblemLabel->hide();
    left->addWidget(seasonProblemLabel);
    left->addStretch(1);
    left->addWidget(helpBtn, 0, Qt::AlignLeft);

    auto *title = new QLabel(u"Tallyline Baseball"_s, central);
    title->setObjectName(u"titleLabel"_s);
    QFont titleFont = title->font();
    titleFont.setPointSize(titleFont.pointSize() + 8);
    titleFont.setBold(true);
    title->setFont(titleFont);
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    const struct
    {
        const char *name, *caption;
        ScreenId target;
    } buttons[] = {
        {"teamScrnBtn", "Create/Edit Team Data", ScreenId::teamScrn},
        {"ShowPersonnelBtn", "Create/Edit Players, Coaches", ScreenId::personnelScrn},
        {"ShowSchedules", "Games/Practices etc.", ScreenId::scheduleScrn},
        {"inventoryBtn", "Inventory", ScreenId::InventoryScrn},
        {"OpenCalendar", "Event Calendar", ScreenId::eventsCalendarScrn},
        {"ShowContacts", "Quick Contact View", ScreenId::contactInfoScrn},
        {"reportBtn", "View Reports", ScreenId::reportIntroScrn},
        {"ShowPlayerCards", "Current Standings", ScreenId::standingsScrn},
        {"formsBtn", "Forms - Extras", ScreenId::formsScrn},
        {"prefBtn", "Preferences", ScreenId::prefScrn},
        {"newSeasonBtn", "New Season Screen", ScreenId::TransferDataScrn},
    };
    int i = 0;
    for (const auto &b : buttons) {
        grid->addWidget(addTargetButton(QString::fromLatin1(b.name), QString::fromLatin1(b.caption), b.target), i / 2,
                        i % 2);
        ++i;
    }
    firstStepLabel = new QLabel(u"Start with your teams: enter them under \"Create/Edit Team Data\"."_s, central);
    firstStepLabel->setObjectName(u"firstStepLabel"_s);
    firstStepLabel->setAccessibleName(firstStepLabel->text());
    firstStepLabel->setWordWrap(true);
    firstStepLabel->setVisible(false);
    auto *right = new QVBoxLayout;
    right->addWidget(title);
    right->addWidget(firstStepLabel);
    right->addLayout(grid);
    right->addStretch(1);
    auto *outer = new QHBoxLayout(central);
    outer->addLayout(left);
    outer->addLayout(right, 1);
    outer->setContentsMargins(16, 12, 16, 12);
    outer->setSpacing(20);
    setMinimumSize(680, 400);

    connect(SelectSeasonPop, &QComboBox::currentIndexChanged, this, &startScrn1::seasonChosen);
    // The season on show chosen again is opened again: a file another
    // program held, or one mended meanwhile, is read anew.
    connect(SelectSeasonPop, &QComboBox::activated, this, [this](int row) {
        if (m_indexJustChanged || m_fillingPopup || !gPrefs || SelectSeasonPop->itemText(row) != gPrefs->prSeason)
            return;
        if (App *app = App::instance(); app && app->selectSeason(gPrefs->prSeason) == App::SeasonChoice::Switched) {
            setLogo_Name();
            showSeasonState();
        }
    });
    installMenuHandlers();
}

void startScrn1::installMenuHandlers()
{
    menus()->installHandler(u"HelpAbout"_s, [this] {
        showAbout();
        return true;
    });
    const struct
    {
        const char *item;
        ScreenId target;
        bool closeStart;
    } menuTargets[] = {
        {"FileBackup", ScreenId::backUpDlog, false},      {"FileRestore", ScreenId::restoreDlog, false},
        {"HelpUpdateCheck", ScreenId::updateDlog, false}, {"Help", ScreenId::helpScrn2, false},
        {"HelpPrefs", ScreenId::prefScrn, true},
    };
    for (const auto &m : menuTargets) {
        const ScreenId target = m.target;
        if (!screens::has(target))
            continue;
        const bool closeStart = m.closeStart;
        menus()->installHandler(QString::fromLatin1(m.item), [this, target, closeStart] {
            openTarget(target, closeStart);
            return true;
        });
    }
}

startScrn1::~startScrn1() = default;

startScrn1 *startScrn1::instance()
{
    return g_startScreen;
}

namespace {
// Every screen that closes comes back here.
[[maybe_unused]] const bool g_homeSet = [] {
    screens::setHome([] { startScrn1::showStartScreen(); });
    return true;
}();
} // namespace

startScrn1 *startScrn1::showStartScreen()
{
    if (!g_startScreen)
        new startScrn1;
    g_startScreen->show();
    g_startScreen->raise();
    g_startScreen->activateWindow();
    return g_startScreen;
}

QPushButton *startScrn1::addTargetButton(const QString &objectName, const QString &caption, ScreenId target)
{
    QPushButton *button = form::button(centralWidget(), objectName, caption);
    button->setMinimumHeight(36);
    // A screen that isn't part of the program yet can't be opened.
    button->setEnabled(screens::has(target));
    m_targets.append({button, target});
    // These open beside the start screen; the others take its place.
    const bool closeStart = target != ScreenId::eventsCalendarScrn && target != ScreenId::contactInfoScrn &&
                            target != ScreenId::standingsScrn;
    if (target == ScreenId::TransferDataScrn) {
        connect(button, &QPushButton::clicked, this, [this, target] {
            if (QWidget *sheet = screens::create(target)) {
                sheet->setParent(this, sheet->windowFlags() | Qt::Sheet);
                sheet->setWindowModality(Qt::WindowModal);
                // The sheet may have made and opened another season: the
                // popup, the home team and whether the season opened are read anew.
                connect(sheet, &QObject::destroyed, this, [this] {
                    setPopupList();
                    setLogo_Name();
                    showSeasonState();
                });
                sheet->show();
            }
        });
    } else {
        connect(button, &QPushButton::clicked, this, [this, target, closeStart] { openTarget(target, closeStart); });
    }
    return button;
}

void startScrn1::openTarget(ScreenId target, bool closeStart)
{
    QWidget *screen = screens::create(target);
    if (!screen)
        return;
    // The target shows before the start screen closes: the program quits
    // when its last window closes.
    screen->show();
    if (closeStart)
        close();
}

void startScrn1::showEvent(QShowEvent *event)
{
    ScreenBase::showEvent(event);
    if (!m_placed) {
        m_placed = true;
        if (QScreen *screen = this->screen())
            move(screen->availableGeometry().center() - frameGeometry().center() + pos());
    }
    setPopupList();
    setLogo_Name();
    showSeasonState();
    if (App::instance() && App::instance()->BUTimer)
        App::instance()->BUTimer->setMode(myTimerClass::ModeOff);
}

void startScrn1::setLogo_Name()
{
    App *app = App::instance();
    if (!app)
        return;
    const auto display = app->homeTeamDisplay();
    if (!display) {
        teamNameLabel->clear();
        return;
    }
    if (display->logo) {
        curLogo = *display->logo;
        LogoHolder->setPicture(curLogo);
    }
    teamNameLabel->setText(display->label);
}

void startScrn1::setPopupList()
{
    App *app = App::instance();
    if (!app || !gPrefs || gPrefs->strdDataLoc.isEmpty())
        return;
    const App::SeasonList list = app->seasonList();
    m_fillingPopup = true;
    SelectSeasonPop->clear();
    SelectSeasonPop->addItem(kSelectSeason);
    SelectSeasonPop->addItems(list.seasons);
    SelectSeasonPop->setCurrentIndex(list.current + 1);
    m_fillingPopup = false;
}

void startScrn1::seasonChosen(int row)
{
    App *app = App::instance();
    if (m_fillingPopup || row < 0 || !app)
        return;
    // The coach's pick also raises "activated", which must not open it twice.
    m_indexJustChanged = true;
    QTimer::singleShot(0, this, [this] { m_indexJustChanged = false; });
    if (app->selectSeason(SelectSeasonPop->itemText(row)) == App::SeasonChoice::Switched) {
        setLogo_Name();
        showSeasonState();
    }
}

void startScrn1::showSeasonState()
{
    const QString unopened = App::instance() ? App::instance()->unopenedSeasonFile() : QString();
    for (const auto &[button, target] : std::as_const(m_targets))
        button->setEnabled(screens::has(target) && (unopened.isEmpty() || !writesSeason(target)));
    const QString text = unopened.isEmpty()
                             ? QString()
                             : QStringLiteral("The season file \"") + QDir::toNativeSeparators(unopened) +
                                   QStringLiteral("\" could not be opened. Choose another season above.");
    seasonProblemLabel->setText(text);
    seasonProblemLabel->setAccessibleName(text);
    seasonProblemLabel->setVisible(!text.isEmpty());

    // Every other screen needs teams: on an empty season the way in is said
    // and the team screen's button has the focus.
    const bool noTeams = unopened.isEmpty() && gData && gData->isConnected() &&
                         gData->scalar(QStringLiteral("SELECT COUNT(*) FROM Teams")).toLongLong() == 0;
    firstStepLabel->setVisible(noTeams);
    if (noTeams) {
        for (const auto &[button, target] : std::as_const(m_targets)) {
            if (target == ScreenId::teamScrn && button->isEnabled())
                button->setFocus(Qt::OtherFocusReason);
        }
    }
}

void startScrn1::showAbout()
{
    auto *about = new AboutScrn(this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setWindowModality(Qt::WindowModal);
    about->show();
}
