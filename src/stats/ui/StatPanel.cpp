#include "stats/ui/StatPanel.h"

#include "app/globals.h"
#include "app/myDB.h"
#include "app/ui/Form.h"
#include "support/ui/NumberKeyFilter.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

StatPanel::StatPanel(stats::Panel kind, const QString &objectName, const QString &title, QWidget *parent)
    : QFrame(parent), m_kind(kind)
{
    setObjectName(objectName);
    setAccessibleName(title);
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    auto *outer = new QVBoxLayout(this);
    auto *top = new QHBoxLayout;
    Label1 = new QLabel(title, this);
    Label1->setObjectName(QStringLiteral("Label1"));
    QFont f = Label1->font();
    f.setBold(true);
    Label1->setFont(f);
    playerIDFld = form::valueLabel(this, QStringLiteral("playerIDFld"), tr("Player ID"));
    closeBtn = form::button(this, QStringLiteral("closeLbl"), tr("X - Close"));
    closeBtn->setFlat(true);
    connect(closeBtn, &QPushButton::clicked, this, &StatPanel::closePanel);
    top->addWidget(Label1);
    top->addStretch();
    top->addWidget(playerIDFld);
    top->addWidget(closeBtn);
    outer->addLayout(top);
    m_grid = new QGridLayout;
    outer->addLayout(m_grid);

    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), this, this, &StatPanel::closePanel);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    hide();
}

QLineEdit *StatPanel::addField(int index, const QString &caption, int gridRow, int gridCol)
{
    auto *field = new QLineEdit(QStringLiteral("0"), this);
    field->setObjectName(QStringLiteral("dataFld_%1").arg(index));
    field->setMaximumWidth(56);
    QLabel *label = form::buddyLabel(field, caption, this);
    label->setObjectName(QStringLiteral("FldLabel_%1").arg(index));
    m_grid->addWidget(label, gridRow, gridCol);
    m_grid->addWidget(field, gridRow, gridCol + 1);
    while (m_fields.size() <= index) {
        m_fields.append(nullptr);
        m_labels.append(nullptr);
    }
    m_fields[index] = field;
    m_labels[index] = label;
    watchField(field, true);
    if (index == 0)
        setFocusProxy(field);
    return field;
}

void StatPanel::watchField(QLineEdit *field, bool numberRule)
{
    if (numberRule) {
        auto *rule = support::NumberKeyFilter::install(field, {.floorAtZero = true, .allowPoint = true});
        connect(rule, &support::NumberKeyFilter::stepped, this, [this] { markDirty(); });
    }
    connect(field, &QLineEdit::textEdited, this, [this] { markDirty(); });
    field->installEventFilter(this);
}

bool StatPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        closePanel();
        return true;
    }
    if (event->type() == QEvent::FocusOut && qobject_cast<QLineEdit *>(watched))
        writeNow(); // a crash with the panel open loses at most the field being typed
    if (event->type() == QEvent::FocusIn) {
        // Typing replaces a short number.
        if (auto *field = qobject_cast<QLineEdit *>(watched))
            QTimer::singleShot(0, field, [field] { field->setSelection(0, 3); });
    }
    return QFrame::eventFilter(watched, event);
}

void StatPanel::setValues(const QString &game, const QString &player, const QString &team)
{
    m_game = game;
    m_player = player;
    m_team = team;
    playerIDFld->setText(player);
    if (!loadRow())
        clearRow();
    m_dirty = false;
}

bool StatPanel::loadRow()
{
    const std::optional<QString> stored = stats::GameStatStore(*gData).stats(m_kind, m_game, m_player);
    if (!stored)
        return false;
    QStringList texts;
    for (QLineEdit *f : m_fields)
        texts.append(f->text());
    texts = stats::spreadStats(*stored, texts);
    for (int i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setText(texts.at(i));
    return true;
}

void StatPanel::clearRow()
{
    for (QLineEdit *f : m_fields)
        f->setText(QStringLiteral("0"));
}

QString StatPanel::gatherData() const
{
    QStringList texts;
    for (QLineEdit *f : m_fields)
        texts.append(f->text());
    return stats::gatherStats(texts);
}

bool StatPanel::writeRow()
{
    return stats::GameStatStore(*gData).saveStats(m_kind, m_game, m_player, m_team, gatherData());
}

bool StatPanel::saveData()
{
    if (!m_dirty || m_player.isEmpty())
        return true;
    if (!writeRow())
        return true; // the database error was shown; the panel lets go
    m_dirty = false;
    Q_EMIT saved();
    return true;
}

void StatPanel::writeNow()
{
    if (m_dirty && !m_player.isEmpty() && rowIsGood())
        StatPanel::saveData();
}

void StatPanel::writeChange()
{
    markDirty();
    writeNow();
}

void StatPanel::closePanel()
{
    if (!isVisible())
        return;
    if (!saveData())
        return;
    hide();
    Q_EMIT wasClosed();
}
