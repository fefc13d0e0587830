#pragma once

// The shared kit of the window tests: a season of its own with the fakes
// installed, and the coach's hands (typing, choosing, clicking a half of a
// plus/minus pair, answering a modal window).

#include "app/App.h"
#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "fakes/FakePlatform.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVariant>

#include <functional>
#include <memory>

class QComboBox;
class PlusMinusContainer;

namespace testkit {

// A season in a temporary home, opened as the program opens it at start
// (preferences, season file, dictionaries), with every platform service
// faked. The messages are strict unless told otherwise: a question nobody
// scripted an answer for, or a scripted answer left unused, fails the test.
// Every window is closed before the season goes.
class Season
{
public:
    explicit Season(bool strictMessages = true);
    ~Season();
    Season(const Season &) = delete;
    Season &operator=(const Season &) = delete;

    QTemporaryDir home;
    // Printouts go to PDF files in home/prints.
    fakes::FakePlatform fake{home.filePath(QStringLiteral("prints"))};

    App &app() { return *m_app; }
    QString folder() const { return home.path(); }

    // Rows straight into the file, as another screen would have left them.
    // A home team becomes the preferences' home team.
    qint64 addTeam(const QString &name, const QString &school = {}, const QString &homeField = {}, bool home = false);
    qint64 addPlayer(qint64 team, const QString &first, const QString &last);
    qint64 addCoach(qint64 team, const QString &first, const QString &last);
    int count(const QString &sql, const QVariantList &params = {}) const;

    // Answers the next questions, in order.
    void answer(std::initializer_list<std::uint8_t> answers);

private:
    std::unique_ptr<App> m_app;
};

// Deletes every screen outright (none can refuse or ask) and closes the
// other windows.
void closeAllWindows();

// Shows the window and makes it the active one, so focus moves as typed.
bool showActive(QWidget *window);

// Runs `work` on the first visible window of type T once it shows (as a
// modal window's exec() is running). A dialog still open 10 seconds later
// is rejected, so that a failed test can't hang.
void whenShownAny(const std::function<QWidget *()> &find, const std::function<void(QWidget *)> &work);
template<class T>
void whenShown(std::function<void(T *)> work)
{
    whenShownAny(
        [] {
            for (QWidget *w : QApplication::topLevelWidgets()) {
                if (qobject_cast<T *>(w) && w->isVisible())
                    return w;
            }
            return static_cast<QWidget *>(nullptr);
        },
        [work](QWidget *w) { work(static_cast<T *>(w)); });
}

// The control named `name` inside `window`, as a test finds it (by the
// objectName the program gives it); fails the run when there is none.
template<class T>
T *child(const QWidget *window, const char *name)
{
    T *found = window->findChild<T *>(QString::fromLatin1(name));
    if (!found)
        qFatal("no control named %s", name);
    return found;
}
template<class T, class W>
T *child(const std::unique_ptr<W> &window, const char *name)
{
    return child<T>(window.get(), name);
}

// Moves the keyboard focus into `field` and types `text`, as the coach does.
void typeInto(QWidget *field, const QString &text);
// Chooses a popup's row by its text, as a click in the open list does.
bool choose(QComboBox *box, const QString &text);
// Presses and lets go one half of a plus/minus pair, as the mouse does.
void clickHalf(PlusMinusContainer *pair, bool plus);

} // namespace testkit
