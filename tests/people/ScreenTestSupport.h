#pragma once

// Helpers of the team and personnel screen tests.

#include "support/ui/PlusMinusContainer.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QPointer>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

namespace screentest {

// Closes every window, deleting the screens outright so that none can
// refuse or ask; run while the season they show is still open.
inline void closeAllWindows()
{
    QList<QPointer<QWidget>> screens;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (w->inherits("ScreenBase"))
            screens.append(w);
    }
    for (const QPointer<QWidget> &w : screens)
        delete w.data();
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Presses and lets go one half of a plus/minus pair, as the mouse does.
inline void clickHalf(PlusMinusContainer *pair, bool plus)
{
    const QPoint at(plus ? pair->width() / 4 : pair->width() * 3 / 4, pair->height() / 2);
    QTest::mouseClick(pair, Qt::LeftButton, {}, at);
}

// Shows the window and makes it the active one, so focus moves as typed.
inline bool showActive(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

// Moves the keyboard focus into `field` and types `text`, as the coach does.
inline void typeInto(QWidget *field, const QString &text)
{
    field->setFocus(Qt::TabFocusReason);
    for (const QChar c : text) {
        if (c.unicode() < 128) {
            QTest::keyClick(field, c.toLatin1());
            continue;
        }
        // QTest's own key clicks know Latin-1 only; letters beyond come as
        // a key event carrying the text, as an input method sends them.
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

// Chooses a popup's row by its text, as a click in the open list does.
inline bool choose(QComboBox *box, const QString &text)
{
    const int row = box->findText(text, Qt::MatchExactly);
    if (row < 0)
        return false;
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
    return true;
}

// The sizes of the pictures placed in a PDF (poppler's pdfimages).
inline QList<QSize> pdfImageSizes(const QString &path)
{
    QProcess p;
    p.start(QStringLiteral("pdfimages"), {QStringLiteral("-list"), path});
    p.waitForFinished(30000);
    QList<QSize> sizes;
    static const QRegularExpression row(QStringLiteral(R"(^\s*\d+\s+\d+\s+(\w+)\s+(\d+)\s+(\d+))"));
    for (const QString &line : QString::fromUtf8(p.readAllStandardOutput()).split(u'\n')) {
        const auto m = row.match(line);
        if (m.hasMatch() && m.captured(1) == u"image")
            sizes.append(QSize(m.captured(2).toInt(), m.captured(3).toInt()));
    }
    return sizes;
}

inline QString writePicture(const QString &path, QSize size, QColor colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    // The content decides the format; the name may say anything.
    picture.save(path, path.endsWith(QStringLiteral(".jpg")) ? "JPEG" : "PNG");
    return path;
}

} // namespace screentest
