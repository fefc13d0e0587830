#pragma once

#include <QImage>
#include <QWidget>

// A logo or photo: paints its picture scaled to the canvas, keeping its
// proportions, or the stand-in picture when it has none. A picture, or a
// file of any type that opens as one, can be dropped on it.
class PictureCanvas : public QWidget
{
    Q_OBJECT

public:
    PictureCanvas(const QImage &standIn, QWidget *parent = nullptr);

    // The picture on show; null when none is set (the stand-in shows).
    const QImage &picture() const { return m_picture; }
    void setPicture(const QImage &picture);
    void clearPicture() { setPicture(QImage()); }
    // What is painted: the picture or the stand-in.
    const QImage &shownPicture() const { return m_picture.isNull() ? m_standIn : m_picture; }

    QSize sizeHint() const override;

Q_SIGNALS:
    // A picture was dropped and is now on show.
    void pictureDropped();

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QImage m_standIn;
    QImage m_picture;
};
