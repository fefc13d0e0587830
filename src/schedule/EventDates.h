#pragma once

#include <QDate>
#include <QString>

// The text forms of an event's date.
//
// SchedDate is stored as ISO text, "YYYY-MM-DD": it sorts as text in date
// order and reads back without depending on anyone's locale. Screens show
// it in the user's locale, short ("4/15/26") in lists and long ("Wednesday,
// April 15, 2026") in the editor.
namespace EventDates {

QString toStored(const QDate &date);
// Reads a stored date. Besides "YYYY-MM-DD" it takes the "YYYY-MM-DD hh:mm:ss"
// form that older season files hold; anything else is an invalid date.
QDate fromStored(const QString &text);

QString shortDate(const QDate &date);
QString longDate(const QDate &date);
// Reads back a date shown by longDate (or shortDate, or ISO text) in the
// current locale; invalid when the text is none of these.
QDate readShown(const QString &text);

} // namespace EventDates
