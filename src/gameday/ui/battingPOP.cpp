#include "gameday/ui/battingPOP.h"

#include "gameday/GridCodes.h"
#include "gameday/ui/GameDayAccessible.h"
#include "gameday/ui/PopoverCodeList.h"
#include "gameday/ui/PopoverWindow.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

namespace {

// Layout, in pixels from the top of the full layout.
constexpr int kMargin = 6;
constexpr int kListWidth = 216;
constexpr int kWidth = kListWidth + 2 * kMargin;
constexpr int kButtonHeight = 22;
// The at-bat list has five rows of 22: sixteen codes, "SF" and three blanks.
constexpr int kActionRows = 5;
constexpr int kActionHeight = kActionRows * 22;
constexpr int kBelowActions = kActionHeight - 88; // what the fifth row moved down
constexpr int kFullHeight = 222 + kBelowActions + kButtonHeight + kMargin;
constexpr int kButtonsOnlyTop = -162 - kBelowActions;
constexpr int kButtonsOnlyHeight = 88;

const QColor kActionColour = QColor::fromRgb(0xEEE8BD);
const QColor kResultColour = QColor::fromRgb(0xD8EECD);

QList<PopoverCodeList::Cell> actionCells()
{
    const char *const descriptions[17] = {"single",
                                          "double",
                                          "triple",
                                          "home run",
                                          "base on balls",
                                          "intentional base on balls",
                                          "hit by pitch",
                                          "sacrifice",
                                          "fly out",
                                          "ground out",
                                          "strike out swinging",
                                          "strike out looking",
                                          "hit into double play",
                                          "reached on error",
                                          "fielder's choice",
                                          "catcher interference",
                                          "sacrifice fly: a fly out that scores a run"};
    QList<PopoverCodeList::Cell> cells;
    const QStringList &codes = gameday::atBatCodes();
    for (int i = 0; i < codes.size(); ++i)
        cells.append({codes.at(i), codes.at(i), QString::fromLatin1(descriptions[i]), kActionColour});
    while (cells.size() < kActionRows * 4)
        cells.append({QString(), QString(), QString(), kActionColour});
    return cells;
}

QList<PopoverCodeList::Cell> resultCells()
{
    using gameday::backgroundColour;
    // The second row carries the colours its results give a grid cell.
    return {
        {QStringLiteral("CS"), QStringLiteral("xCS"), QStringLiteral("caught stealing"), kResultColour},
        {QStringLiteral("POB"), QStringLiteral("xPOB"), QStringLiteral("picked off base"), kResultColour},
        {QStringLiteral("FrO"), QStringLiteral("xFrcO"), QStringLiteral("force out"), kResultColour},
        {QStringLiteral("OUT"), QStringLiteral("xOUT"), QStringLiteral("out"), backgroundColour(gameday::kBkgOut)},
        {QStringLiteral("RUN"), QStringLiteral("xRUN"), QStringLiteral("run"), backgroundColour(gameday::kBkgRun)},
        {QStringLiteral("LOB"), QStringLiteral("xLOB"), QStringLiteral("left on base"),
         backgroundColour(gameday::kBkgLeft)},
    };
}

} // namespace

battingPOP::battingPOP(QWidget *parent) : QWidget(parent)
{
    new PopoverWindow(this);
    // Before anything asks for the interface, which is then kept.
    gameday::accessible::install();
    setObjectName(QStringLiteral("battingPOP"));
    setAccessibleName(tr("At bat entry"));
    // The click that closes the window must not reach the grid under it.
    setAttribute(Qt::WA_NoMouseReplay);

    batActionLabel = new QLabel(tr("At Bat Action"), this);
    batActionLabel->setObjectName(QStringLiteral("batActionLabel"));
    batActionLB = new PopoverCodeList(kActionRows, 4, actionCells(), this);
    batActionLB->setObjectName(QStringLiteral("batActionLB"));
    batActionLB->setAccessibleName(batActionLabel->text());
    batActionLabel->setBuddy(batActionLB);

    resultLabel = new QLabel(tr("On Base Result"), this);
    resultLabel->setObjectName(QStringLiteral("resultLabel"));
    resultLB = new PopoverCodeList(2, 3, resultCells(), this);
    resultLB->setObjectName(QStringLiteral("resultLB"));
    resultLB->setAccessibleName(resultLabel->text());
    resultLabel->setBuddy(resultLB);

    connect(batActionLB, &PopoverCodeList::picked, this, &battingPOP::choose);
    connect(resultLB, &PopoverCodeList::picked, this, &battingPOP::choose);

    const QStringList &captions = gameday::commandCaptions();
    for (int i = 0; i < int(actionBtn.size()); ++i) {
        auto *button = new QPushButton(captions.at(i), this);
        button->setObjectName(QStringLiteral("actionBtn%1").arg(i));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, i] { choose(gameday::commandCaptions().at(i)); });
        actionBtn[i] = button;
    }
    setTabOrder(batActionLB, resultLB);
    setTabOrder(resultLB, actionBtn[0]);
    for (int i = 1; i < int(actionBtn.size()); ++i)
        setTabOrder(actionBtn[i - 1], actionBtn[i]);
}

battingPOP::~battingPOP()
{
    if (m_loop)
        m_loop->quit();
}

void battingPOP::layOut(bool showAll)
{
    // Without the lists the whole layout moves up past them, so only the three
    // pairs of buttons are in the window; the lists are also hidden so the
    // keyboard can't reach them.
    displayTop = showAll ? 0 : kButtonsOnlyTop;
    batActionLabel->setGeometry(kMargin, displayTop + 0, kListWidth, 18);
    batActionLB->setGeometry(kMargin, displayTop + 18, kListWidth, kActionHeight);
    resultLabel->setGeometry(kMargin, displayTop + 110 + kBelowActions, kListWidth, 18);
    resultLB->setGeometry(kMargin, displayTop + 128 + kBelowActions, kListWidth, 44);
    for (QWidget *w : {static_cast<QWidget *>(batActionLabel), static_cast<QWidget *>(batActionLB),
                       static_cast<QWidget *>(resultLabel), static_cast<QWidget *>(resultLB)})
        w->setVisible(showAll);

    const int half = (kListWidth - 4) / 2;
    for (int i = 0; i < int(actionBtn.size()); ++i) {
        const int x = kMargin + (i % 2) * (half + 4);
        const int y = displayTop + 174 + kBelowActions + (i / 2) * 24;
        actionBtn[i]->setGeometry(x, y, half, kButtonHeight);
    }
    setFixedSize(kWidth, showAll ? kFullHeight : kButtonsOnlyHeight);
}

QString battingPOP::getClickedTxt(int left, int top, bool showAll)
{
    clickedTxt.clear();
    layOut(showAll);

    QPoint at(left, top);
    if (const QScreen *screen = QGuiApplication::screenAt(at) ? QGuiApplication::screenAt(at)
                                                              : QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        at.setX(qBound(area.left(), at.x(), qMax(area.left(), area.right() + 1 - width())));
        at.setY(qBound(area.top(), at.y(), qMax(area.top(), area.bottom() + 1 - height())));
    }
    move(at);
    show();
    raise();
    activateWindow();
    if (showAll)
        batActionLB->setFocus(Qt::PopupFocusReason);
    else
        actionBtn[0]->setFocus(Qt::PopupFocusReason);

    gameday::accessible::popoverShown(this, true);
    QPointer<battingPOP> self(this);
    Q_EMIT opened();
    if (self && isVisible()) {
        QEventLoop loop;
        m_loop = &loop;
        loop.exec();
        if (self)
            m_loop = nullptr;
    }
    return self ? clickedTxt : QString();
}

void battingPOP::choose(const QString &text)
{
    clickedTxt = text;
    close();
}

void battingPOP::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void battingPOP::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (m_loop)
        m_loop->quit();
}

void battingPOP::hideEvent(QHideEvent *event)
{
    // A press outside closes the popover (PopoverWindow).
    QWidget::hideEvent(event);
    gameday::accessible::popoverShown(this, false);
    if (m_loop)
        m_loop->quit();
}
