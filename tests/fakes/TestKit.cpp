#include "fakes/TestKit.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/ScreenBase.h"
#include "support/ui/PlusMinusContainer.h"

#include <QComboBox>
#include <QDir>
#include <QTest>

namespace testkit {

Season::Season(bool strictMessages)
{
    fake.messages.strict = strictMessages;
    QDir(home.path()).mkpath(QStringLiteral("prints"));
    m_app = std::make_unique<App>(home.path());
    if (m_app->Event_Open() != App::OpenResult::Ok)
        qFatal("the test season did not open");
}

Season::~Season()
{
    closeAllWindows();
}

qint64 Season::addTeam(const QString &name, const QString &school, const QString &homeField, bool isHome)
{
    const qint64 id = gData->insert(QStringLiteral("Teams"), {{QStringLiteral("TeamName"), name},
                                                              {QStringLiteral("SchoolName"), school},
                                                              {QStringLiteral("HomeField"), homeField},
                                                              {QStringLiteral("Active"), 1}});
    if (isHome)
        gPrefs->prHomeTeam = QString::number(id);
    return id;
}

qint64 Season::addPlayer(qint64 team, const QString &first, const QString &last)
{
    return gData->insert(QStringLiteral("Players"), {{QStringLiteral("TeamNum"), team},
                                                     {QStringLiteral("First"), first},
                                                     {QStringLiteral("Last"), last}});
}

qint64 Season::addCoach(qint64 team, const QString &first, const QString &last)
{
    return gData->insert(QStringLiteral("Coaches"), {{QStringLiteral("TeamNum"), team},
                                                     {QStringLiteral("First"), first},
                                                     {QStringLiteral("Last"), last}});
}

int Season::count(const QString &sql, const QVariantList &params) const
{
    return gData->scalar(sql, params).toInt();
}

void Season::answer(std::initializer_list<std::uint8_t> answers)
{
    for (std::uint8_t a : answers)
        fake.messages.answers.enqueue(a);
}

void closeAllWindows()
{
    QList<QPointer<QWidget>> screens;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (qobject_cast<ScreenBase *>(w))
            screens.append(w);
    }
    for (const QPointer<QWidget> &w : screens)
        delete w.data();
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool showActive(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

void whenShownAny(const std::function<QWidget *()> &find, const std::function<void(QWidget *)> &work)
{
    auto *poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, find, work] {
        QWidget *window = find();
        if (!window)
            return;
        poll->stop();
        poll->deleteLater();
        QPointer<QDialog> guard = qobject_cast<QDialog *>(window);
        QTimer::singleShot(10000, [guard] {
            if (guard && guard->isVisible())
                guard->reject();
        });
        work(window);
    });
    poll->start();
}

void typeInto(QWidget *field, const QString &text)
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

bool choose(QComboBox *box, const QString &text)
{
    const int row = box->findText(text, Qt::MatchExactly);
    if (row < 0)
        return false;
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
    return true;
}

void clickHalf(PlusMinusContainer *pair, bool plus)
{
    const QPoint at(plus ? pair->width() / 4 : pair->width() * 3 / 4, pair->height() / 2);
    QTest::mouseClick(pair, Qt::LeftButton, {}, at);
}

} // namespace testkit
