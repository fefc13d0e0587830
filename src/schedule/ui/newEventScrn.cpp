#include "schedule/ui/newEventScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "schedule/EventDates.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ui/Calendar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// A small calendar page for the date button: a red band over a grid of days.
QIcon calendarIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(90, 90, 90), 1.5));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(3, 5, 26, 24), 3, 3);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(200, 40, 40));
    p.drawRect(QRectF(4, 6, 24, 6));
    p.setBrush(QColor(120, 120, 120));
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 4; ++col)
            p.drawRect(QRectF(7 + col * 5.5, 15 + row * 4.5, 3, 3));
    }
    return QIcon(pixmap);
}

// A three-state box whose undecided state only the program sets: a click
// goes between checked and unchecked.
class TwoWayCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override { setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked); }
};

QComboBox *editableBox(QWidget *parent, const QString &name, const QString &accessible, const QStringList &items)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(name);
    box->setAccessibleName(accessible);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(items);
    box->setCurrentIndex(-1);
    box->setEditText(QString());
    return box;
}

} // namespace

newEventScrn::newEventScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("newEventScrn"));
    setWindowTitle(QStringLiteral("Event"));
    setWindowModality(Qt::WindowModal);

    auto *outer = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    eventDateFld = new QLineEdit(this);
    eventDateFld->setObjectName(QStringLiteral("eventDateFld"));
    eventDateFld->setAccessibleName(QStringLiteral("Event date"));
    eventDateFld->setReadOnly(true);
    eventDateFld->setPlaceholderText(QStringLiteral("Click the calendar to pick a date"));
    eventDateFld->setToolTip(QStringLiteral("Space or Alt+Down opens the calendar"));
    eventDateFld->installEventFilter(this);
    eventDateFld->setMinimumWidth(240);
    calCnv = new QToolButton(this);
    calCnv->setObjectName(QStringLiteral("calCnv"));
    calCnv->setAccessibleName(QStringLiteral("Pick the date from a calendar"));
    calCnv->setToolTip(QStringLiteral("Pick the date from a calendar"));
    calCnv->setIcon(calendarIcon());
    calCnv->setIconSize(QSize(24, 24));
    auto *dateRow = new QHBoxLayout;
    dateRow->addWidget(eventDateFld, 1);
    dateRow->addWidget(calCnv);
    auto *dateLabel = new QLabel(QStringLiteral("&Date:"), this);
    dateLabel->setBuddy(eventDateFld);
    form->addRow(dateLabel, dateRow);

    const QStringList hours = EventForm::hours();
    const QStringList minutes = EventForm::minutes();
    const QStringList halves = EventForm::meridiems();
    busHour = timeBox(QStringLiteral("busHour"), QStringLiteral("Bus departs, hour"), hours, true);
    busMinute = timeBox(QStringLiteral("busMinute"), QStringLiteral("Bus departs, minutes"), minutes, true);
    busAMPM = timeBox(QStringLiteral("busAMPM"), QStringLiteral("Bus departs, AM or PM"), halves, false);
    gameHour = timeBox(QStringLiteral("gameHour"), QStringLiteral("Start time, hour"), hours, true);
    gameMinute = timeBox(QStringLiteral("gameMinute"), QStringLiteral("Start time, minutes"), minutes, true);
    gameAMPM = timeBox(QStringLiteral("gameAMPM"), QStringLiteral("Start time, AM or PM"), halves, false);
    const auto timeRow = [this, form](const QString &caption, QComboBox *hour, QComboBox *minute, QComboBox *half) {
        auto *row = new QHBoxLayout;
        row->addWidget(hour);
        auto *colon = new QLabel(QStringLiteral(":"), this);
        colon->setBuddy(minute);
        row->addWidget(colon);
        row->addWidget(minute);
        row->addWidget(half);
        row->addStretch(1);
        auto *label = new QLabel(caption, this);
        label->setBuddy(hour);
        form->addRow(label, row);
    };
    timeRow(QStringLiteral("&Bus Departs:"), busHour, busMinute, busAMPM);
    timeRow(QStringLiteral("&Start Time:"), gameHour, gameMinute, gameAMPM);

    eventTypeBox = editableBox(this, QStringLiteral("eventTypeBox"), QStringLiteral("Event type"), EventForm::eventTypes());
    eventTypeBox->installEventFilter(this);
    auto *typeLabel = new QLabel(QStringLiteral("&Event:"), this);
    typeLabel->setBuddy(eventTypeBox);
    form->addRow(typeLabel, eventTypeBox);

    opponentBox = new QComboBox(this);
    opponentBox->setObjectName(QStringLiteral("opponentBox"));
    opponentBox->setAccessibleName(QStringLiteral("Opponent"));
    opponentBox->setPlaceholderText(QStringLiteral("Select an opponent"));
    auto *opponentLabel = new QLabel(QStringLiteral("&Opponent:"), this);
    opponentLabel->setBuddy(opponentBox);
    form->addRow(opponentLabel, opponentBox);

    locationBox = editableBox(this, QStringLiteral("locationBox"), QStringLiteral("Location"), {});
    locationBox->installEventFilter(this);
    auto *locationLabel = new QLabel(QStringLiteral("&Location:"), this);
    locationLabel->setBuddy(locationBox);
    form->addRow(locationLabel, locationBox);

    homeCheck = new TwoWayCheckBox(QStringLiteral("&Home Game"), this);
    homeCheck->setObjectName(QStringLiteral("homeCheck"));
    homeCheck->setAccessibleName(QStringLiteral("Home Game"));
    homeCheck->setTristate(true);
    homeCheck->setCheckState(Qt::PartiallyChecked);
    homeCheck->setEnabled(false);
    homeCheck->setToolTip(QStringLiteral("Checked: home game. Clear: away game."));
    form->addRow(QString(), homeCheck);
    outer->addLayout(form);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cancelBtn = new QPushButton(QStringLiteral("Cancel"), this);
    cancelBtn->setObjectName(QStringLiteral("cancelBtn"));
    cancelBtn->setAutoDefault(false);
    actionBtn = new QPushButton(QStringLiteral("Add Event"), this);
    actionBtn->setObjectName(QStringLiteral("actionBtn"));
    actionBtn->setDefault(true);
    buttons->addWidget(cancelBtn);
    buttons->addWidget(actionBtn);
    outer->addLayout(buttons);

    connect(calCnv, &QToolButton::clicked, this, &newEventScrn::calCnv_Click);
    connect(eventTypeBox, &QComboBox::currentTextChanged, this,
            [this](const QString &text) { homeCheck->setEnabled(EventForm::homeCheckEnabled(text)); });
    connect(locationBox, &QComboBox::currentTextChanged, this, &newEventScrn::locationChanged);
    connect(actionBtn, &QPushButton::clicked, this, [this] {
        if (setEventProperties())
            accept();
    });
    connect(cancelBtn, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, [this] { m_result.reset(); });

    fill();
    // The date comes first, and Space on the calendar button picks it.
    calCnv->setFocus();
}

QComboBox *newEventScrn::timeBox(const QString &name, const QString &accessible, const QStringList &items, bool numbers)
{
    QComboBox *box = editableBox(this, name, accessible, items);
    // A typed "5" is five minutes, not the list's "55".
    if (numbers)
        box->setCompleter(nullptr);
    box->lineEdit()->setMaxLength(2);
    box->setMinimumContentsLength(3);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setProperty("numbersOnly", numbers);
    box->installEventFilter(this);
    return box;
}

void newEventScrn::fill()
{
    ScheduleStore store(*gData);
    m_form.opponents = EventForm::opponentEntries(store.teams());
    {
        const QSignalBlocker block(opponentBox);
        opponentBox->clear();
        for (int i = 0; i < m_form.opponents.size(); ++i)
            opponentBox->addItem(m_form.opponentLabel(i), m_form.opponents.at(i).tag);
        opponentBox->setCurrentIndex(-1);
    }
    const QSignalBlocker block(locationBox);
    locationBox->clear();
    locationBox->addItems(store.locations());
    locationBox->setCurrentIndex(-1);
    locationBox->setEditText(QString());
}

std::optional<eventClass> newEventScrn::getNewEvent(QWidget *parent)
{
    newEventScrn editor(parent);
    editor.exec();
    return editor.result();
}

std::optional<eventClass> newEventScrn::getEditEvent(QWidget *parent, qint64 eventID)
{
    newEventScrn editor(parent);
    if (!editor.loadEvent(eventID))
        return std::nullopt;
    editor.exec();
    return editor.result();
}

bool newEventScrn::loadEvent(qint64 eventID)
{
    const auto entry = ScheduleStore(*gData).find(eventID);
    if (!entry)
        return false;
    m_form.loadEvent(entry->event, entry->storedDate);
    showForm();
    actionBtn->setText(QStringLiteral("Edit Event"));
    setWindowTitle(QStringLiteral("Edit Event"));
    return true;
}

void newEventScrn::readForm()
{
    m_form.dateText = eventDateFld->text();
    m_form.busHour = busHour->currentText();
    m_form.busMinute = busMinute->currentText();
    m_form.busAMPM = busAMPM->currentText();
    m_form.gameHour = gameHour->currentText();
    m_form.gameMinute = gameMinute->currentText();
    m_form.gameAMPM = gameAMPM->currentText();
    m_form.eventType = eventTypeBox->currentText();
    m_form.opponentIndex = opponentBox->currentIndex();
    const bool listed = m_form.opponentIndex >= 0 && m_form.opponentIndex < m_form.opponents.size();
    m_form.opponentText = listed ? m_form.opponents.at(m_form.opponentIndex).name : QString();
    m_form.location = locationBox->currentText();
    m_form.homeState = homeCheck->checkState();
}

void newEventScrn::showForm()
{
    eventDateFld->setText(m_form.dateText);
    busHour->setEditText(m_form.busHour);
    busMinute->setEditText(m_form.busMinute);
    busAMPM->setEditText(m_form.busAMPM);
    gameHour->setEditText(m_form.gameHour);
    gameMinute->setEditText(m_form.gameMinute);
    gameAMPM->setEditText(m_form.gameAMPM);
    eventTypeBox->setEditText(m_form.eventType);
    // The location decides home or away by itself; the stored choice is
    // put back after it.
    locationBox->setEditText(m_form.location);
    opponentBox->setCurrentIndex(m_form.opponentIndex);
    homeCheck->setCheckState(m_form.homeState);
}

bool newEventScrn::setEventProperties()
{
    readForm();
    eventClass event;
    const bool ok = m_form.setEventProperties(event);
    // What leaving the fields would have done shows in them, right or wrong.
    {
        const QSignalBlocker block(locationBox);
        locationBox->setEditText(m_form.location);
    }
    eventTypeBox->setEditText(m_form.eventType);
    busAMPM->setEditText(m_form.busAMPM);
    gameAMPM->setEditText(m_form.gameAMPM);
    opponentBox->setCurrentIndex(m_form.opponentIndex);
    if (ok)
        m_result = event;
    return ok;
}

void newEventScrn::setOppoBox(const QString &name)
{
    m_form.setOppoBox(name);
    opponentBox->setCurrentIndex(m_form.opponentIndex);
}

void newEventScrn::setPickedDate(const QDate &date)
{
    m_form.mDate = date;
    eventDateFld->setText(EventDates::longDate(date));
}

void newEventScrn::calCnv_Click()
{
    readForm();
    QDate start = m_form.mDate;
    if (!start.isValid())
        start = EventDates::readShown(m_form.dateText);
    if (const auto picked = Calendar::GetDate(this, start))
        setPickedDate(*picked);
}

void newEventScrn::locationChanged(const QString &text)
{
    const QString homeTeam = gPrefs ? gPrefs->prHomeTeam : QString();
    homeCheck->setCheckState(EventForm::homeStateForLocation(text, ScheduleStore(*gData).homeField(homeTeam)));
}

bool newEventScrn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (watched == eventDateFld) {
            if (key->key() == Qt::Key_Space || (key->key() == Qt::Key_Down && key->modifiers() & Qt::AltModifier)) {
                calCnv_Click();
                return true;
            }
        } else if (watched->property("numbersOnly").toBool()) {
            // Keys that type a character go through the number rule;
            // arrows, Enter, Escape and shortcuts keep their meaning.
            const bool shortcut = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
            QChar typed;
            if (key->key() == Qt::Key_Backspace)
                typed = QChar(8);
            else if (key->key() == Qt::Key_Tab)
                typed = QChar(9);
            else if (!key->text().isEmpty() && key->text().at(0).isPrint())
                typed = key->text().at(0);
            if (!shortcut && !typed.isNull() && EventForm::allowNumsOnly(typed))
                return true;
        }
    } else if (event->type() == QEvent::FocusOut) {
        if (watched == eventTypeBox) {
            eventTypeBox->setEditText(EventForm::normalEventType(eventTypeBox->currentText()));
        } else if (watched == locationBox) {
            const QString titled = EventForm::titleCase(locationBox->currentText());
            if (titled != locationBox->currentText())
                locationBox->setEditText(titled);
        } else if (watched == busAMPM || watched == gameAMPM) {
            auto *box = static_cast<QComboBox *>(watched);
            box->setEditText(EventForm::normalMeridiem(box->currentText()));
        }
    }
    return QDialog::eventFilter(watched, event);
}
