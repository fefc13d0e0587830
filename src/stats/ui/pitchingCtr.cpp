#include "stats/ui/pitchingCtr.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "stats/ui/AutoFillPitchScrn.h"
#include "support/NumberKeyRule.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

pitchingCtr::pitchingCtr(QWidget *parent)
    : StatPanel(stats::Panel::Pitching, QStringLiteral("myPitchCtr"), tr("Pitching Stats"), parent)
{
    auto *boxes = new QHBoxLayout;
    auto *decision = new QGroupBox(tr("Game"), this);
    decision->setObjectName(QStringLiteral("DecisionBox"));
    auto *dl = new QVBoxLayout(decision);
    const QStringList results = {tr("&Win"), tr("&Loss"), tr("Sa&ve"), tr("&ND")};
    for (int i = 0; i < 4; ++i) {
        m_gameBtn[size_t(i)] = form::named(new QRadioButton(results.at(i), decision),
                                           QStringLiteral("gameBtn_%1").arg(i), form::spokenCaption(results.at(i)));
        dl->addWidget(m_gameBtn[size_t(i)]);
        connect(m_gameBtn[size_t(i)], &QRadioButton::clicked, this, [this] { writeChange(); });
    }
    auto *achieve = new QGroupBox(tr("Achievements"), this);
    achieve->setObjectName(QStringLiteral("AchieveBox"));
    auto *al = new QVBoxLayout(achieve);
    const QStringList achievements = {tr("S&tart"), tr("S&hut Out"), tr("Co&mplete Game")};
    for (int i = 0; i < 3; ++i) {
        m_achieveBtn[size_t(i)] = form::named(new QCheckBox(achievements.at(i), achieve),
                                              QStringLiteral("achieveBtn_%1").arg(i),
                                              form::spokenCaption(achievements.at(i)));
        al->addWidget(m_achieveBtn[size_t(i)]);
        connect(m_achieveBtn[size_t(i)], &QCheckBox::clicked, this, [this] { writeChange(); });
    }
    auto *count = new QGroupBox(tr("Pitch Count"), this);
    count->setObjectName(QStringLiteral("pitchCtBox"));
    auto *cl = new QFormLayout(count);
    form::Rows rows(count, cl);
    const QStringList countCaptions = {tr("BALLS"), tr("STRIKES"), tr("PITCH CT.")};
    for (int i = 0; i < 3; ++i) {
        m_pitchCt[size_t(i)] = rows.lineEdit(QStringLiteral("pitchCtFld_%1").arg(i), countCaptions.at(i));
        m_pitchCt[size_t(i)]->setMaximumWidth(56);
    }
    m_pitchCt[2]->setReadOnly(true);
    for (int i = 0; i < 2; ++i) {
        // Every key passes here; the total follows the two counts.
        watchField(m_pitchCt[size_t(i)], false);
        connect(m_pitchCt[size_t(i)], &QLineEdit::textChanged, this, &pitchingCtr::setPitchCt);
    }
    boxes->addWidget(decision);
    boxes->addWidget(achieve);
    boxes->addWidget(count);
    m_grid->addLayout(boxes, 0, 0, 1, 8);

    QStringList captions = {"IP**", "BF", "H", "ER", "HRA", "GO", "FO", "BB", "IntBB", "PO", "Ks", "Blk", "WP", "HB"};
    captions += stats::userDefinedCaptions(gPrefs ? gPrefs->prUDP : QString(), 3);
    for (int i = 0; i < stats::kPitchingFields; ++i) {
        QLineEdit *f = addField(i, captions.at(i), 1 + i % 5, 2 * (i / 5));
        f->setObjectName(QStringLiteral("PStatFld_%1").arg(i));
        fieldLabel(i)->setObjectName(QStringLiteral("statLabel_%1").arg(i));
    }
    auto *note = new QLabel(tr("**Record thirds of an inning after a dot. (i.e. 6 and 1/3 = 6.1, 5 and 2/3 = 5.2)"),
                            this);
    note->setObjectName(QStringLiteral("Label5"));
    note->setWordWrap(true);
    m_grid->addWidget(note, 6, 0, 1, 6);
    m_autoFillBtn = form::button(this, QStringLiteral("autoFillBtn"), tr("&Auto-Fill"), tr("Auto-fill pitching stats"));
    m_grid->addWidget(m_autoFillBtn, 6, 6, 1, 2);
    connect(m_autoFillBtn, &QPushButton::clicked, this, [this] {
        if (AutoFillPitchScrn::getMyAction(this))
            Q_EMIT autoFillCalled();
    });

    // Keyboard order: the counts, then the numbers, then the boxes.
    QWidget *prev = m_pitchCt[0];
    auto chain = [&prev](QWidget *next) {
        setTabOrder(prev, next);
        prev = next;
    };
    chain(m_pitchCt[1]);
    for (int i = 0; i < stats::kPitchingFields; ++i)
        chain(dataFld(i));
    for (QRadioButton *b : m_gameBtn)
        chain(b);
    for (QCheckBox *b : m_achieveBtn)
        chain(b);
    chain(m_autoFillBtn);
    chain(closeBtn);
    setFocusProxy(m_pitchCt[0]);
    closeBtn->setObjectName(QStringLiteral("Label6"));
}

int pitchingCtr::getGameResult() const
{
    for (int i = 0; i < 3; ++i) {
        if (m_gameBtn[size_t(i)]->isChecked())
            return i + 1;
    }
    return 4;
}

void pitchingCtr::setPitchCt()
{
    m_pitchCt[2]->setText(QString::number(support::numberFieldValue(m_pitchCt[0]->text()) +
                                          support::numberFieldValue(m_pitchCt[1]->text())));
}

bool pitchingCtr::rowIsGood() const
{
    return !stats::isBadInnings(dataFld(0)->text());
}

bool pitchingCtr::saveData()
{
    if (dataDirty() && stats::isBadInnings(dataFld(0)->text())) {
        gShowMsgDlog(QStringLiteral("Incorrect 'IP' entry."), QStringLiteral("Enter thirds of an inning as .1 or .2"),
                     QStringLiteral("OK"));
        dataFld(0)->setFocus();
        return false;
    }
    return StatPanel::saveData();
}

bool pitchingCtr::loadRow()
{
    const std::optional<stats::PitchingLine> p = stats::GameStatStore(*gData).pitching(m_game, m_player);
    if (!p)
        return false;
    m_gameBtn[size_t(p->gameResult - 1)]->setChecked(true);
    m_achieveBtn[0]->setChecked(p->start);
    m_achieveBtn[1]->setChecked(p->shutout);
    m_achieveBtn[2]->setChecked(p->compGame);
    m_pitchCt[0]->setText(QString::number(p->totBalls));
    m_pitchCt[1]->setText(QString::number(p->totKs));
    setPitchCt();
    QStringList texts;
    for (int i = 0; i < fieldCount(); ++i)
        texts.append(dataFld(i)->text());
    texts = stats::spreadStats(p->stats, texts);
    for (int i = 0; i < fieldCount(); ++i)
        dataFld(i)->setText(texts.at(i));
    return true;
}

void pitchingCtr::clearRow()
{
    for (QLineEdit *f : m_pitchCt)
        f->setText(QStringLiteral("0"));
    for (QCheckBox *b : m_achieveBtn)
        b->setChecked(false);
    m_gameBtn[3]->setChecked(true);
    StatPanel::clearRow();
}

bool pitchingCtr::writeRow()
{
    stats::PitchingLine p;
    p.gameResult = getGameResult();
    p.start = m_achieveBtn[0]->isChecked();
    p.shutout = m_achieveBtn[1]->isChecked();
    p.compGame = m_achieveBtn[2]->isChecked();
    p.totBalls = support::numberFieldValue(m_pitchCt[0]->text());
    p.totKs = support::numberFieldValue(m_pitchCt[1]->text());
    p.stats = gatherData();
    return stats::GameStatStore(*gData).savePitching(m_game, m_player, m_team, p);
}

void pitchingCtr::setAutoData(const gameday::AutoFillData &values)
{
    QStringList texts;
    for (int i = 0; i < fieldCount(); ++i)
        texts.append(dataFld(i)->text());
    texts = stats::applyAutoFill(texts, values);
    for (int i = 0; i < fieldCount(); ++i)
        dataFld(i)->setText(texts.at(i));
    writeChange();
    show();
    raise();
}
