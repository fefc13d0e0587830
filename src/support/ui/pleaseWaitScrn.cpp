#include "support/ui/pleaseWaitScrn.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

pleaseWaitScrn::pleaseWaitScrn(QWidget *parent, const QString &detail)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(QStringLiteral("pleaseWaitScrn"));
    setWindowTitle(QStringLiteral("Please Wait"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 18);
    titleLbl = new QLabel(QStringLiteral("Please wait..."), this);
    titleLbl->setObjectName(QStringLiteral("titleLbl"));
    QFont big = titleLbl->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    titleLbl->setFont(big);
    detailLbl = new QLabel(detail, this);
    detailLbl->setObjectName(QStringLiteral("detailLbl"));
    layout->addWidget(titleLbl, 0, Qt::AlignHCenter);
    layout->addWidget(detailLbl, 0, Qt::AlignHCenter);
}

pleaseWaitScrn::~pleaseWaitScrn()
{
    // Deleted while still shown: the pointer mustn't stay busy.
    if (m_cursorSet)
        QApplication::restoreOverrideCursor();
}

void pleaseWaitScrn::showNow()
{
    show();
    raise();
    // Lay out and paint now; the caller's step holds the event loop next.
    QCoreApplication::sendPostedEvents(this, QEvent::LayoutRequest);
    repaint();
}

void pleaseWaitScrn::showEvent(QShowEvent *event)
{
    if (!m_cursorSet) {
        QApplication::setOverrideCursor(Qt::BusyCursor);
        m_cursorSet = true;
    }
    QDialog::showEvent(event);
}

void pleaseWaitScrn::hideEvent(QHideEvent *event)
{
    if (m_cursorSet) {
        QApplication::restoreOverrideCursor();
        m_cursorSet = false;
    }
    QDialog::hideEvent(event);
}
