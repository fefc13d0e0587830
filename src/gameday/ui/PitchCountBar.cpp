#include "gameday/ui/PitchCountBar.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "gameday/GameDay.h"

#include <QEvent>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace {

// The home team's rule set from the season's data folder; a copy the
// coach damaged is named with its line, and the built-in set stands in.
stats::PitchRuleSet homeRules()
{
    if (!gPrefs)
        return stats::pitchrules::builtIn();
    stats::pitchrules::copyShipped(gPrefs->strdDataLoc);
    QString refused;
    stats::PitchRuleSet rules = stats::pitchrules::load(gPrefs->strdDataLoc, &refused);
    if (!refused.isEmpty())
        gShowMsgDlog(QStringLiteral("The pitch count rules could not be read."),
                     refused + QStringLiteral("\n\nThe national youth guidelines are used instead."),
                     QStringLiteral("OK"));
    return rules;
}

} // namespace

PitchCountBar::PitchCountBar(myDB &db, gameday::GameDay &game, QWidget *parent) : QFrame(parent)
{
    form::named(this, QStringLiteral("pitchCountBar"), tr("Pitch counter"));
    m_count = new stats::GamePitchCount(db, game, homeRules(), this);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    pitcherFld = form::valueLabel(this, QStringLiteral("pitcherFld"), tr("Pitcher on the mound"));
    pitcherFld->setMinimumWidth(140);
    row->addWidget(pitcherFld);
    const struct
    {
        QPushButton **button;
        const char *name, *caption, *spoken, *key;
        stats::Pitch pitch;
    } buttons[] = {
        {&ballBtn, "ballBtn", "Ball", "Ball (Ctrl+Shift+B)", "Ctrl+Shift+B", stats::Pitch::Ball},
        {&strikeBtn, "strikeBtn", "Strike", "Strike (Ctrl+Shift+S)", "Ctrl+Shift+S", stats::Pitch::Strike},
        {&foulBtn, "foulBtn", "Foul", "Foul, counted as a strike (Ctrl+Shift+F)", "Ctrl+Shift+F", stats::Pitch::Foul},
    };
    for (const auto &b : buttons) {
        QPushButton *button = form::button(this, QString::fromLatin1(b.name), tr(b.caption), tr(b.spoken));
        button->setToolTip(tr(b.spoken));
        const stats::Pitch pitch = b.pitch;
        connect(button, &QPushButton::clicked, this, [this, pitch] { m_count->add(pitch); });
        // The keys work from any control of the game window, the grid included.
        auto *key = new QShortcut(QKeySequence(QString::fromLatin1(b.key)), this);
        key->setContext(Qt::WindowShortcut);
        connect(key, &QShortcut::activated, button, &QPushButton::click);
        *b.button = button;
        row->addWidget(button);
    }
    pitchCountFld = form::valueLabel(this, QStringLiteral("pitchCountFld"), tr("Pitches and strikes"));
    pitchCountFld->setMinimumWidth(150);
    row->addWidget(pitchCountFld);
    pitchNoticeFld = form::valueLabel(this, QStringLiteral("pitchNoticeFld"), tr("Rest the pitches cost"));
    row->addWidget(pitchNoticeFld, 1);

    connect(m_count, &stats::GamePitchCount::changed, this, &PitchCountBar::refresh);
    refresh();
}

void PitchCountBar::watchCover(std::initializer_list<QWidget *> panels)
{
    for (QWidget *panel : panels) {
        m_panels << panel;
        panel->installEventFilter(this);
    }
}

bool PitchCountBar::eventFilter(QObject *watched, QEvent *event)
{
    if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && m_panels.contains(watched)) {
        const bool covered = std::any_of(m_panels.begin(), m_panels.end(),
                                         [](const QWidget *panel) { return !panel->isHidden(); });
        m_count->setCovered(covered);
    }
    return QFrame::eventFilter(watched, event);
}

void PitchCountBar::refresh()
{
    const stats::PitchCounter &counter = m_count->counter();
    const bool may = m_count->mayCount();
    for (QPushButton *b : {ballBtn, strikeBtn, foulBtn})
        b->setEnabled(may);
    if (!counter.hasPitcher()) {
        pitcherFld->setText(tr("No pitcher in the lineup"));
        pitchCountFld->clear();
        pitchNoticeFld->clear();
        return;
    }
    pitcherFld->setText(tr("Pitching: %1").arg(m_count->pitcherName()));
    pitchCountFld->setText(counter.countText());
    pitchNoticeFld->setText(counter.notice());
    // The pitch that reached a new rest band or the daily maximum stands out.
    QFont font = pitchNoticeFld->font();
    font.setBold(counter.lastPitchCrossed());
    pitchNoticeFld->setFont(font);
}
