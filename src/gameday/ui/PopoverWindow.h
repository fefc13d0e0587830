#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

// Makes a frameless tool window behave as a popup that screen readers see:
// Qt leaves windows of the popup type out of the application's windows on
// the accessibility bus, so the at-bat popover is a tool window instead,
// and this closes it on a press outside it (the press goes no further) or
// when the program loses the focus, as a popup closes.
class PopoverWindow : public QObject
{
    Q_OBJECT

public:
    // Filters the application's events while `popover` is shown.
    explicit PopoverWindow(QWidget *popover);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool belongsToPopover(QObject *object) const;

    QPointer<QWidget> m_popover;
};
