#pragma once

#include "people/TeamRecord.h"

#include <QList>
#include <QStringList>
#include <QUrl>

class myDB;

namespace people {

// What the contact windows read: a team's players and coaches with their
// phone numbers and addresses, and the people a message can go to.
class ContactBook
{
public:
    explicit ContactBook(myDB &db) : m_db(db) {}

    // The team popups: by name, with their ids.
    QList<TeamChoice> teams() const;

    // One row per player: First, Last, PhoneNumber, CellPhone, Email,
    // Guardian, GuardianPhone, EmergContact, EmergPhone.
    QList<QStringList> playerRows(const QString &teamID) const;
    // One row per coach: First, Last, PhoneNumber, CellPhone, Email.
    QList<QStringList> coachRows(const QString &teamID) const;
    static QStringList playerHeadings();
    static QStringList coachHeadings();
    // The column of the email address in both kinds of rows.
    static constexpr int kEmailColumn = 4;

    // A message to the selected people: their addresses as they stand
    // (one without an address leaves an empty entry), the team's name as
    // the subject.
    static QUrl messageTo(const QStringList &addresses, const QString &teamName);

    // A person a message may go to.
    struct Recipient
    {
        QString id; // coachID or playerID
        QString name;
        QString Email;
        bool checked = false;
    };
    QList<Recipient> coachRecipients(const QString &teamID) const;
    QList<Recipient> playerRecipients(const QString &teamID) const;
    // The checked people's addresses, coaches first, joined by ","; those
    // without an address holding "@" are left out.
    static QString recipientStr(const QList<Recipient> &coaches, const QList<Recipient> &players);

private:
    myDB &m_db;
};

} // namespace people
