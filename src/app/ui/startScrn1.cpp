#include "app/ui/startScrn1.h"

#include "app/App.h"
#include "app/globals.h"
#include "app/ui/AboutScrn.h"
#include "app/ui/MainMenuBar.h"
#include "app/ui/ScreenDirectory.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {
QPointer<startScrn1> g_startScreen;
const QString kSelectSeason = QStringLiteral("Select Season");
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

startScrn1::startScrn1(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("startScrn1"));
    setWindowTitle(QStringLiteral("Tallyline Baseball"));
    setAttribute(Qt::WA_DeleteOnClose);
    g_startScreen = this;

    m_menuBar = new MainMenuBar(this);
    setMenuBar(m_menuBar);

    auto *central = new QWidget(this);
    auto *outer = new QHBoxLayout(central);

    auto *left = new QVBoxLayout;
    LogoHolder = new LogoCanvas(central);
    teamNameLabel = new QLabel(central);
    teamNameLabel->setObjectName(QStringLiteral("teamNameLabel"));
    teamNameLabel->setAccessibleName(QStringLiteral("Home team"));
    QFont nameFont = teamNameLabel->font();
    nameFont.setPointSize(nameFont.pointSize() + 4);
    nameFont.setBold(true);
    teamNameLabel->setFont(nameFont);
    teamNameLabel->setWordWrap(true);
    teamNameLabel->setAlignment(Qt::AlignCenter);
    left->addWidget(LogoHolder, 0, Qt::AlignHCenter);
    left->addWidget(teamNameLabel);

    auto *seasonLabel = new QLabel(QStringLiteral("&Season:"), central);
    SelectSeasonPop = new QComboBox(central);
    SelectSeasonPop->setObjectName(QStringLiteral("SelectSeasonPop"));
    SelectSeasonPop->setAccessibleName(QStringLiteral("Season"));
    seasonLabel->setBuddy(SelectSeasonPop);
    teamNameLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    seasonLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    left->addSpacing(12);
    left->addWidget(seasonLabel);
    left->addWidget(SelectSeasonPop);
    left->addStretch(1);

    helpBtn = new QPushButton(QStringLiteral("?"), central);
    helpBtn->setObjectName(QStringLiteral("helpBtn"));
    helpBtn->setAccessibleName(QStringLiteral("Help"));
    helpBtn->setToolTip(QStringLiteral("Help for this screen"));
    helpBtn->setFixedWidth(32);
    helpBtn->setEnabled(screens::has(ScreenId::helpScrn2));
    connect(helpBtn, &QPushButton::clicked, this, [] {
        // The start screen's help is the getting-started page.
        if (QWidget *help = screens::create(ScreenId::helpScrn2, 1))
            help->show();
    });
    left->addWidget(helpBtn, 0, Qt::AlignLeft);
    outer->addLayout(left);

    auto *right = new QVBoxLayout;
    auto *title = new QLabel(QStringLiteral("Tallyline Baseball"), central);
    title->setObjectName(QStringLiteral("titleLabel"));
    QFont titleFont = title->font();
    titleFont.setPointSize(titleFont.pointSize() + 8);
    titleFont.setBold(true);
    title->setFont(titleFont);
    right->addWidget(title);
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
        QPushButton *button = addTargetButton(QString::fromLatin1(b.name), QString::fromLatin1(b.caption), b.target);
        grid->addWidget(button, i / 2, i % 2);
        ++i;
    }
    right->addLayout(grid);
    right->addStretch(1);
    outer->addLayout(right, 1);
    outer->setContentsMargins(16, 12, 16, 12);
    outer->setSpacing(20);
    setCentralWidget(central);
    setMinimumSize(680, 400);

    connect(SelectSeasonPop, &QComboBox::currentIndexChanged, this, &startScrn1::seasonChosen);

    m_menuBar->installHandler(QStringLiteral("HelpAbout"), [this] {
        showAbout();
        return true;
    });
    const struct
    {
        const char *item;
        ScreenId target;
        bool closeStart;
    } menuTargets[] = {
        {"FileBackup", ScreenId::backUpDlog, false},
        {"HelpUpdateCheck", ScreenId::updateDlog, false},
        {"Abbrev", ScreenId::HelpAbbrevScrn, false},
        {"Help", ScreenId::helpScrn2, false},
        {"HelpPrefs", ScreenId::prefScrn, true},
    };
    for (const auto &m : menuTargets) {
        const ScreenId target = m.target;
        if (!screens::has(target))
            continue;
        const bool closeStart = m.closeStart;
        m_menuBar->installHandler(QString::fromLatin1(m.item), [this, target, closeStart] {
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
    auto *button = new QPushButton(caption, centralWidget() ? centralWidget() : this);
    button->setObjectName(objectName);
    button->setAccessibleName(caption);
    button->setMinimumHeight(36);
    // A screen that isn't part of the program yet can't be opened.
    button->setEnabled(screens::has(target));
    // These open beside the start screen; the others take its place.
    const bool closeStart = target != ScreenId::eventsCalendarScrn && target != ScreenId::contactInfoScrn
                            && target != ScreenId::standingsScrn;
    if (target == ScreenId::TransferDataScrn) {
        connect(button, &QPushButton::clicked, this, [this, target] {
            if (QWidget *sheet = screens::create(target)) {
                sheet->setParent(this, sheet->windowFlags() | Qt::Sheet);
                sheet->setWindowModality(Qt::WindowModal);
                connect(sheet, &QObject::destroyed, this, [this] { setPopupList(); });
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
    QMainWindow::showEvent(event);
    if (!m_placed) {
        m_placed = true;
        if (QScreen *screen = this->screen())
            move(screen->availableGeometry().center() - frameGeometry().center() + pos());
    }
    setPopupList();
    setLogo_Name();
    if (App::instance() && App::instance()->BUTimer)
        App::instance()->BUTimer->setMode(myTimerClass::ModeOff);
}

void startScrn1::setLogo_Name()
{
    App *app = App::instance();
    if (!app)
        return;
    const auto display = app->homeTeamDisplay();
    if (!display)
        return;
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
    if (app->selectSeason(SelectSeasonPop->itemText(row)) == App::SeasonChoice::Switched)
        setLogo_Name();
}

void startScrn1::showAbout()
{
    auto *about = new AboutScrn(this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setWindowModality(Qt::WindowModal);
    about->show();
}
