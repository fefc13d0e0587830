#include "schedule/ui/newEventScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
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

using namespace Qt::StringLiterals;

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

// An editable box that shows nothing chosen and nothing typed.
void clearEditable(QComboBox *box)
{
    box->setCurrentIndex(-1);
    box->setEditText(QString());
}

} // namespace

newEventScrn::newEventScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("newEventScrn"));
    setWindowTitle(QStringLiteral("Event"));
    setWindowModality(Qt::WindowModal);

    auto *fields = new QFormLayout;
    form::Rows rows(this, fields);
    eventDateFld = form::lineEdit(this, u"eventDateFld"_s, u"Event date"_s);
    eventDateFld->setReadOnly(true);
    eventDateFld->setPlaceholderText(u"Click the calendar to pick a date"_s);
    eventDateFld->setToolTip(u"Space or Alt+Down opens the calendar"_s);
    eventDateFld->installEventFilter(this);
    eventDateFld->setMinimumWidth(240);
    calCnv = form::make<QToolButton>(this, u"calCnv"_s, u"Pick the date from a calendar"_s);
    calCnv->setToolTip(calCnv->accessibleName());
    calCnv->setIcon(calendarIcon());
    calCnv->setIconSize(QSize(24, 24));
    auto *dateRow = form::row({eventDateFld, calCnv});
    dateRow->setStretch(0, 1);
    rows.addRow(u"&Date:"_s, dateRow, eventDateFld);

    const QStringList hours = EventForm::hours();
    const QStringList minutes = EventForm::minutes();
    const QStringList halves = EventForm::meridiems();
    busHour = timeBox(u"busHour"_s, u"Bus departs, hour"_s, hours, true);
    busMinute = timeBox(u"busMinute"_s, u"Bus departs, minutes"_s, minutes, true);
    busAMPM = timeBox(u"busAMPM"_s, u"Bus departs, AM or PM"_s, halves, false);
    gameHour = timeBox(u"gameHour"_s, u"Start time, hour"_s, hours, true);
    gameMinute = timeBox(u"gameMinute"_s, u"Start time, minutes"_s, minutes, true);
    gameAMPM = timeBox(u"gameAMPM"_s, u"Start time, AM or PM"_s, halves, false);
    const auto timeRow = [&](const QString &caption, QComboBox *hour, QComboBox *minute, QComboBox *half) {
        rows.addRow(caption, form::row({hour, form::buddyLabel(minute, u":"_s, this), minute, half, nullptr}), hour);
    };
    timeRow(u"&Bus Departs:"_s, busHour, busMinute, busAMPM);
    timeRow(u"&Start Time:"_s, gameHour, gameMinute, gameAMPM);

    eventTypeBox = rows.comboBox(u"eventTypeBox"_s, u"&Event:"_s, form::Editable);
    eventTypeBox->addItems(EventForm::eventTypes());
    clearEditable(eventTypeBox);
    eventTypeBox->installEventFilter(this);
    opponentBox = rows.comboBox(u"opponentBox"_s, u"&Opponent:"_s);
    opponentBox->setPlaceholderText(u"Select an opponent"_s);
    locationBox = rows.comboBox(u"locationBox"_s, u"&Location:"_s, form::Editable);
    locationBox->installEventFilter(this);

    homeCheck = form::make<TwoWayCheckBox>(this, u"homeCheck"_s, u"Home Game"_s, u"&Home Game"_s);
    homeCheck->setTristate(true);
    homeCheck->setCheckState(Qt::PartiallyChecked);
    homeCheck->setEnabled(false);
    homeCheck->setToolTip(u"Checked: home game. Clear: away game."_s);
    fields->addRow(QString(), homeCheck);

    cancelBtn = form::button(this, u"cancelBtn"_s, u"Cancel"_s);
    cancelBtn->setAutoDefault(false);
    actionBtn = form::button(this, u"actionBtn"_s, u"Add Event"_s);
    actionBtn->setDefault(true);
    auto *outer = new QVBoxLayout(this);
    outer->addLayout(fields);
    outer->addLayout(form::row({nullptr, cancelBtn, actionBtn}));

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
    // No completion: a typed "5" is five minutes, not the list's "55".
    QComboBox *box = form::comboBox(this, name, accessible, form::Editable);
    box->addItems(items);
    clearEditable(box);
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
