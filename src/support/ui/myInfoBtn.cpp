#include "support/ui/myInfoBtn.h"

#include "support/HelpRequests.h"
#include "support/ui/SupportPictures.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

using support::HelpRequests;

myInfoBtn::myInfoBtn(int helpDest, QWidget *parent)
    : QAbstractButton(parent), m_helpDest(helpDest), m_pic(support::supportPicture(QStringLiteral("InfoBtn")))
{
    setAccessibleName(QStringLiteral("Help"));
    setToolTip(QStringLiteral("Help for this screen"));
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(this, &QAbstractButton::clicked, this, &myInfoBtn::askForHelp);
    connect(&HelpRequests::instance(), &HelpRequests::answeredChanged, this, &myInfoBtn::followHelp);
    followHelp();
}

void myInfoBtn::followHelp()
{
    setEnabled(HelpRequests::instance().isAnswered());
}

void myInfoBtn::showEvent(QShowEvent *event)
{
    followHelp();
    QAbstractButton::showEvent(event);
}

void myInfoBtn::askForHelp()
{
    HelpRequests::instance().ask(m_helpDest);
}

void myInfoBtn::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!isEnabled())
        p.setOpacity(0.4);
    // Pressed, the picture moves 2 pixels right and down; the picture keeps a
    // margin so that its edge isn't cut.
    const QPointF shift = isDown() ? QPointF(2, 2) : QPointF(0, 0);
    p.drawImage(QRectF(rect()).translated(shift), m_pic);
    if (hasFocus()) {
        p.setOpacity(1);
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &p, this);
    }
}
