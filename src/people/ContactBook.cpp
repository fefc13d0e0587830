#include "people/ContactBook.h"

#include "app/myDB.h"
#include "people/PeopleText.h"
#include "people/TeamStore.h"
#include "support/MailtoAddress.h"

namespace people {

namespace {

QList<QStringList> rowsOf(myDB &db, const QString &sql, const QString &teamID, const QStringList &columns)
{
    QList<QStringList> out;
    for (const Record &r : db.select(sql, {teamID})) {
        QStringList cells;
        // Phone numbers read as the phone fields show them.
        for (const QString &c : columns)
            cells.append(c.contains(QStringLiteral("Phone")) ? formatThroughMask(r.text(c), phoneMaskFor(r.text(c)))
                                                             : r.text(c));
        out.append(cells);
    }
    return out;
}

QStringList playerColumns()
{
    return {QStringLiteral("First"),         QStringLiteral("Last"),         QStringLiteral("PhoneNumber"),
            QStringLiteral("CellPhone"),     QStringLiteral("Email"),        QStringLiteral("Guardian"),
            QStringLiteral("GuardianPhone"), QStringLiteral("EmergContact"), QStringLiteral("EmergPhone")};
}

} // namespace

QList<TeamChoice> ContactBook::teams() const
{
    return TeamStore(m_db).choices();
}

QStringList ContactBook::playerHeadings()
{
    return {QStringLiteral("First"),          QStringLiteral("Last"),
            QStringLiteral("Phone"),          QStringLiteral("Cell"),
            QStringLiteral("Email"),          QStringLiteral("Guardian"),
            QStringLiteral("Guardian Phone"), QStringLiteral("Emergency Contact"),
            QStringLiteral("Emergency Phone")};
}

QStringList ContactBook::coachHeadings()
{
    return playerHeadings().mid(0, 5);
}

QList<QStringList> ContactBook::playerRows(const QString &teamID) const
{
    return rowsOf(m_db,
                  QStringLiteral("SELECT First, Last, PhoneNumber, CellPhone, Email, Guardian, GuardianPhone, "
                                 "EmergContact, EmergPhone FROM Players WHERE TeamNum = ?"),
                  teamID, playerColumns());
}

QList<QStringList> ContactBook::coachRows(const QString &teamID) const
{
    return rowsOf(m_db,
                  QStringLiteral("SELECT First, Last, PhoneNumber, CellPhone, Email FROM Coaches WHERE TeamNum = ?"),
                  teamID, playerColumns().mid(0, 5));
}

QUrl ContactBook::messageTo(const QStringList &addresses, const QString &teamName)
{
    return support::mailtoAddress(addresses, teamName);
}

QList<ContactBook::Recipient> ContactBook::coachRecipients(const QString &teamID) const
{
    QList<Recipient> out;
    for (const Record &r :
         m_db.select(QStringLiteral("SELECT First, Last, coachID, Email FROM Coaches WHERE TeamNum = ?"), {teamID}))
        out.append({r.text(QStringLiteral("coachID")),
                    r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last")),
                    r.text(QStringLiteral("Email")), false});
    return out;
}

QList<ContactBook::Recipient> ContactBook::playerRecipients(const QString &teamID) const
{
    QList<Recipient> out;
    for (const Record &r :
         m_db.select(QStringLiteral("SELECT First, Last, Email, playerID FROM Players WHERE TeamNum = ?"), {teamID}))
        out.append({r.text(QStringLiteral("playerID")),
                    r.text(QStringLiteral("First")) + u' ' + r.text(QStringLiteral("Last")),
                    r.text(QStringLiteral("Email")), false});
    return out;
}

QString ContactBook::recipientStr(const QList<Recipient> &coaches, const QList<Recipient> &players)
{
    QStringList addresses;
    for (const QList<Recipient> *list : {&coaches, &players}) {
        for (const Recipient &r : *list) {
            if (r.checked && !r.Email.isEmpty() && r.Email.contains(u'@'))
                addresses.append(r.Email);
        }
    }
    return addresses.join(u',');
}

} // namespace people
