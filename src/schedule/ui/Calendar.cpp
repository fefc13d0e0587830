#include "schedule/ui/Calendar.h"

#include "app/ui/Form.h"

#include "platform/Services.h"
#include "schedule/CalendarMonth.h"

#include <QComboBox>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

Calendar::Calendar(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Calendar"));
    setWindowTitle(QStringLiteral("Select a Date"));
    setModal(true);

    const auto monthButton = [this](const QString &name, const QString &caption, const QString &spoken,
                                    const QString &key) {
        QPushButton *button = form::button(this, name, caption, spoken);
        button->setToolTip(u"%1 (%2)"_s.arg(spoken, key));
        button->setAutoDefault(false);
        return button;
    };
    PushButton2 = monthButton(u"PushButton2"_s, u"<"_s, u"Previous month"_s, u"Page Up"_s);
    PushButton1 = monthButton(u"PushButton1"_s, u">"_s, u"Next month"_s, u"Page Down"_s);
    PopupMonth = form::comboBox(this, u"PopupMonth"_s, u"Month"_s);
    const QLocale locale;
    for (int m = 1; m <= 12; ++m)
        PopupMonth->addItem(locale.standaloneMonthName(m, QLocale::LongFormat));
    PopupYear = form::comboBox(this, u"PopupYear"_s, u"Year"_s);
    for (int y = CalendarMonth::kFirstYear; y <= CalendarMonth::kLastYear; ++y)
        PopupYear->addItem(QString::number(y));
    auto *header = form::row({PushButton2, form::buddyLabel(PopupMonth, u"&Month:"_s, this), PopupMonth,
                              form::buddyLabel(PopupYear, u"&Year:"_s, this), PopupYear, PushButton1});
    header->setStretch(2, 1);
    auto *outer = new QVBoxLayout(this);
    outer->addLayout(header);

    auto *grid = new QGridLayout;
    grid->setSpacing(2);
    for (int d = 0; d < 7; ++d) {
        // Sunday first, as the day slots run.
        auto *name = new QLabel(locale.standaloneDayName(d == 0 ? 7 : d, QLocale::ShortFormat), this);
        name->setObjectName(QStringLiteral("StaticText1_%1").arg(d));
        name->setAlignment(Qt::AlignCenter);
        StaticText1.append(name);
        grid->addWidget(name, 0, d);
    }
    for (int slot = 0; slot < CalendarMonth::kSlots; ++slot) {
        auto *button = new QPushButton(this);
        button->setObjectName(QStringLiteral("BevelButton1_%1").arg(slot));
        button->setFixedSize(40, 32);
        button->setAutoDefault(false);
        button->installEventFilter(this);
        connect(button, &QPushButton::clicked, this, [this, slot] { BevelButton1_Action(slot); });
        BevelButton1.append(button);
        grid->addWidget(button, 1 + slot / 7, slot % 7);
    }
    outer->addLayout(grid);

    PushButton3 = form::button(this, u"PushButton3"_s, u"This Month"_s);
    PushButton3->setAutoDefault(false);
    outer->addWidget(PushButton3, 0, Qt::AlignHCenter);

    connect(PopupMonth, &QComboBox::currentIndexChanged, this, &Calendar::PopupMonth_Change);
    connect(PopupYear, &QComboBox::currentIndexChanged, this, &Calendar::PopupYear_Change);
    connect(PushButton1, &QPushButton::clicked, this, &Calendar::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &Calendar::PushButton2_Action);
    connect(PushButton3, &QPushButton::clicked, this, &Calendar::PushButton3_Action);

    setStartDate(platform::clock().now().date());
}

std::optional<QDate> Calendar::GetDate(QWidget *parent, const QDate &date)
{
    Calendar picker(parent);
    picker.setStartDate(date.isValid() ? date : platform::clock().now().date());
    // Only a click on a day accepts; the close box and Escape reject, and
    // the caller's date stays as it was.
    if (picker.exec() != QDialog::Accepted)
        return std::nullopt;
    return picker.chosenDate();
}

void Calendar::setStartDate(const QDate &date)
{
    const CalendarMonth page(date);
    whichDate = page.first();
    m_startDate = date;
    m_focusDay = date.isValid() && page.first().year() == date.year() && page.first().month() == date.month()
                     ? date.day()
                     : 1;
    updateMonth();
}

void Calendar::updateMonth()
{
    const CalendarMonth page(whichDate);
    whichDate = page.first();
    {
        const QSignalBlocker blockMonth(PopupMonth);
        const QSignalBlocker blockYear(PopupYear);
        PopupMonth->setCurrentIndex(page.month() - 1);
        PopupYear->setCurrentIndex(page.year() - CalendarMonth::kFirstYear);
    }
    const QLocale locale;
    for (int slot = 0; slot < CalendarMonth::kSlots; ++slot) {
        QPushButton *button = BevelButton1.at(slot);
        const int day = page.dayInSlot(slot);
        button->setVisible(day > 0);
        button->setText(day > 0 ? QString::number(day) : QString());
        QFont font = button->font();
        font.setBold(day > 0 && QDate(page.year(), page.month(), day) == m_startDate);
        button->setFont(font);
        button->setAccessibleName(day > 0 ? locale.toString(QDate(page.year(), page.month(), day), QLocale::LongFormat)
                                          : QString());
    }
    PushButton1->setEnabled(page.next().has_value());
    PushButton2->setEnabled(page.previous().has_value());
    focusDay(std::min(m_focusDay, page.length()));
}

void Calendar::focusDay(int day)
{
    const int slot = CalendarMonth(whichDate).slotOfDay(day);
    if (slot >= 0) {
        m_focusDay = day;
        BevelButton1.at(slot)->setFocus();
    }
}

void Calendar::PopupMonth_Change(int index)
{
    if (index < 0)
        return;
    whichDate = QDate(whichDate.year(), index + 1, 1);
    updateMonth();
}

void Calendar::PopupYear_Change(int index)
{
    if (index < 0)
        return;
    whichDate = QDate(CalendarMonth::kFirstYear + index, whichDate.month(), 1);
    updateMonth();
}

void Calendar::BevelButton1_Action(int slot)
{
    const int day = CalendarMonth(whichDate).dayInSlot(slot);
    if (day == 0)
        return;
    whichDate = QDate(whichDate.year(), whichDate.month(), day);
    m_chosen = whichDate;
    accept();
}

void Calendar::PushButton1_Action()
{
    // The popups move; their change handlers lay out the new month.
    const CalendarMonth page(whichDate);
    if (page.month() == 12) {
        if (!page.next())
            return;
        PopupYear->setCurrentIndex(PopupYear->currentIndex() + 1);
        PopupMonth->setCurrentIndex(0);
    } else {
        PopupMonth->setCurrentIndex(PopupMonth->currentIndex() + 1);
    }
}

void Calendar::PushButton2_Action()
{
    const CalendarMonth page(whichDate);
    if (page.month() == 1) {
        // January 2000 is the first page the year popup has.
        if (!page.previous())
            return;
        PopupYear->setCurrentIndex(PopupYear->currentIndex() - 1);
        PopupMonth->setCurrentIndex(11);
    } else {
        PopupMonth->setCurrentIndex(PopupMonth->currentIndex() - 1);
    }
}

void Calendar::PushButton3_Action()
{
    setStartDate(platform::clock().now().date());
}

bool Calendar::eventFilter(QObject *watched, QEvent *event)
{
    // Arrow keys walk the days, Page Up and Page Down the months.
    auto *button = qobject_cast<QPushButton *>(watched);
    if (event->type() == QEvent::KeyPress && button && BevelButton1.contains(button)) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const int step = key->key() == Qt::Key_Left    ? -1
                         : key->key() == Qt::Key_Right ? 1
                         : key->key() == Qt::Key_Up    ? -7
                         : key->key() == Qt::Key_Down  ? 7
                                                       : 0;
        if (step != 0) {
            focusDay(std::clamp(m_focusDay + step, 1, CalendarMonth(whichDate).length()));
            return true;
        }
        if (key->key() == Qt::Key_PageDown || key->key() == Qt::Key_PageUp) {
            if (key->key() == Qt::Key_PageDown)
                PushButton1_Action();
            else
                PushButton2_Action();
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn && button) {
        const int slot = int(BevelButton1.indexOf(button));
        if (slot >= 0 && CalendarMonth(whichDate).dayInSlot(slot) > 0)
            m_focusDay = CalendarMonth(whichDate).dayInSlot(slot);
    }
    return QDialog::eventFilter(watched, event);
}
