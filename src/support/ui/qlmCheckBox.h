#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QList>
#include <QPointer>

// A drawn check box: its picture scaled to the control's height, the
// caption beside it. Boxes that know each other through `myGroup` act as
// radio buttons: one of them is always on, a click on the one that is on
// does nothing, and a click on another turns it on and the rest off.
//
// Mouse and keyboard (Space) both work, as for any button; `MouseUp` follows
// every click that was taken, after the values have changed. Like the
// program's other drawn controls, a box answers the release of a press it
// took wherever the pointer is by then.
class qlmCheckBox : public QAbstractButton
{
    Q_OBJECT

public:
    explicit qlmCheckBox(QWidget *parent = nullptr);
    explicit qlmCheckBox(const QString &text, QWidget *parent = nullptr);

    // Makes radio buttons of `boxes`: each one's group becomes the others.
    static void makeGroup(const QList<qlmCheckBox *> &boxes);

    bool value() const { return isChecked(); }
    // Sets the value from code, without `MouseUp`. Turning on a box of a
    // group turns the others off, so the group keeps exactly one on.
    void setValue(bool on);

    QString myText() const { return text(); }
    void setMyText(const QString &caption);

    // The other boxes of this one's group; empty for a lone box.
    QList<qlmCheckBox *> myGroup() const;
    void setMyGroup(const QList<qlmCheckBox *> &others);
    int groupTotal() const { return int(myGroup().size()); }

    // The checked and unchecked pictures; the project's own by default.
    QImage myValuePict() const { return m_valuePict; }
    QImage myUnselPict() const { return m_unselPict; }
    void setPictures(const QImage &checked, const QImage &unchecked);

    // Where the caption stands: its baseline at 0.8 of the height, its left
    // edge 6 pixels past the box.
    double myBaseLine() const { return height() * 0.8; }
    int myTextLeft() const { return height() + 6; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void MouseUp();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void nextCheckState() override;
    bool hitButton(const QPoint &pos) const override;

private:
    bool takesPress() const;
    void afterClick();

    QImage m_valuePict;
    QImage m_unselPict;
    QList<QPointer<qlmCheckBox>> m_group;
    bool m_clickTaken = false;
};
