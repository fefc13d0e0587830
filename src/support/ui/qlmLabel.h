#pragma once

#include <QImage>
#include <QLabel>

// The heading of a list or panel: light text, centred, on the picture
// "qlmLabelBkg" stretched over the control. A QLabel underneath, so that
// assistive tools read its text.
class qlmLabel : public QLabel
{
    Q_OBJECT

public:
    explicit qlmLabel(const QString &text = {}, QWidget *parent = nullptr);

    // Stores the text and redraws.
    void setMyText(const QString &text);
    QString myText() const { return text(); }

    static QColor textColour() { return QColor(255, 250, 239); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_background;
};
