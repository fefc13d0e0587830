#include "people/RosterCsv.h"

#include "app/myDB.h"
#include "people/MemberStore.h"

#include <QSet>

namespace people {

namespace {

using Text = QString MemberRecord::*;

struct FieldAccess
{
    const char *column;
    const char *heading;
    const char *names; // "|"-separated
    Text member;       // nullptr for Active
};

const QList<FieldAccess> &accessors()
{
    static const QList<FieldAccess> fields = {
        {"UniNum", "Number", "number|no.|no|#|uniform|uniform number|jersey|uninum", &MemberRecord::UniNum},
        {"First", "First Name", "first name|first|given name|firstname", &MemberRecord::First},
        {"Last", "Last Name", "last name|last|surname|family name|lastname", &MemberRecord::Last},
        {"Pos1", "Position", "position|pos|pos1|position 1", &MemberRecord::Pos1},
        {"Pos2", "Position 2", "position 2|pos2", &MemberRecord::Pos2},
        {"Pos3", "Position 3", "position 3|pos3", &MemberRecord::Pos3},
        {"HitSide", "Bats", "bats|hits|hitside", &MemberRecord::HitSide},
        {"ThrowSide", "Throws", "throws|throwside", &MemberRecord::ThrowSide},
        {"DOB", "Date of Birth", "date of birth|dob|birth date|birthday", &MemberRecord::DOB},
        {"StudentID", "Student ID", "student id|studentid|student number", &MemberRecord::StudentID},
        {"Address", "Address", "address|street", &MemberRecord::Address},
        {"Address1", "Address 2", "address 2|address1|address line 2", &MemberRecord::Address1},
        {"City", "City", "city|town", &MemberRecord::City},
        {"State", "State", "state", &MemberRecord::State},
        {"Zip", "Zip", "zip|zip code|postal code", &MemberRecord::Zip},
        {"PhoneNumber", "Phone", "phone|phone number|home phone|phonenumber", &MemberRecord::PhoneNumber},
        {"CellPhone", "Cell Phone", "cell phone|cell|mobile|cellphone", &MemberRecord::CellPhone},
        {"Email", "E-mail", "e-mail|email|mail", &MemberRecord::Email},
        {"Guardian", "Guardian", "guardian|parent", &MemberRecord::Guardian},
        {"GuardianPhone", "Guardian Phone", "guardian phone|parent phone|guardianphone", &MemberRecord::GuardianPhone},
        {"EmergContact", "Emergency Contact", "emergency contact|emergcontact", &MemberRecord::EmergContact},
        {"EmergPhone", "Emergency Phone", "emergency phone|emergphone", &MemberRecord::EmergPhone},
        {"Doctor", "Doctor", "doctor|physician", &MemberRecord::Doctor},
        {"DoctorPhone", "Doctor Phone", "doctor phone|doctorphone", &MemberRecord::DoctorPhone},
        {"MedInfo", "Medical Information", "medical information|medical|medinfo", &MemberRecord::MedInfo},
        {"PlayerNotes", "Notes", "notes|playernotes", &MemberRecord::PlayerNotes},
        {"Active", "Active", "active", nullptr},
    };
    return fields;
}

QString key(const MemberRecord &m)
{
    return m.UniNum.trimmed().toLower() + u'\t' + m.First.trimmed().toLower() + u'\t' + m.Last.trimmed().toLower();
}

bool activeValue(const QString &text)
{
    const QString t = text.trimmed().toLower();
    return !(t == u"0" || t == u"no" || t == u"n" || t == u"false" || t == u"inactive");
}

} // namespace

const QList<RosterField> &rosterFields()
{
    static const QList<RosterField> fields = [] {
        QList<RosterField> out;
        for (const FieldAccess &f : accessors()) {
            RosterField field{QString::fromLatin1(f.column), QString::fromLatin1(f.heading), {}};
            field.names = QString::fromLatin1(f.names).split(u'|');
            out.append(field);
        }
        return out;
    }();
    return fields;
}

QByteArray rosterCsv(const QList<MemberRecord> &players)
{
    QStringList headings;
    for (const FieldAccess &f : accessors())
        headings.append(QString::fromLatin1(f.heading));
    QString out = support::csv::line(headings);
    for (const MemberRecord &p : players) {
        QStringList cells;
        for (const FieldAccess &f : accessors())
            cells.append(f.member ? p.*(f.member) : (p.Active ? QStringLiteral("1") : QStringLiteral("0")));
        out += support::csv::line(cells);
    }
    return out.toUtf8();
}

RosterImport RosterImport::read(const QByteArray &text)
{
    RosterImport import;
    import.m_table = support::csv::parse(text);
    const QStringList heads = import.headings();
    for (const RosterField &field : rosterFields()) {
        int found = -1;
        for (int c = 0; c < heads.size() && found < 0; ++c) {
            if (field.names.contains(heads.at(c).trimmed().toLower()))
                found = c;
        }
        import.mapping.append(found);
    }
    return import;
}

QString RosterImport::problem() const
{
    if (m_table.badLine == 0)
        return {};
    return QStringLiteral("Line %1 is damaged: %2.").arg(m_table.badLine).arg(m_table.problem);
}

QStringList RosterImport::headings() const
{
    return m_table.rows.isEmpty() ? QStringList() : m_table.rows.first();
}

bool RosterImport::canImport() const
{
    return m_table.badLine == 0 && m_table.rows.size() > 1 && (mapping.value(1, -1) >= 0 || mapping.value(2, -1) >= 0);
}

QList<MemberRecord> RosterImport::players(const QString &teamID) const
{
    QList<MemberRecord> out;
    const QList<FieldAccess> &fields = accessors();
    for (qsizetype r = 1; r < m_table.rows.size(); ++r) {
        const QStringList &row = m_table.rows.at(r);
        MemberRecord m;
        m.kind = MemberKind::Player;
        m.TeamNum = teamID;
        for (qsizetype f = 0; f < fields.size(); ++f) {
            const int column = mapping.value(f, -1);
            if (column < 0)
                continue;
            // Tabs and line ends would break the game's stored strings.
            QString value = row.value(column).trimmed();
            value.replace(u'\t', u' ').replace(u'\r', u' ').replace(u'\n', u' ');
            if (fields.at(f).member)
                m.*(fields.at(f).member) = value;
            else
                m.Active = activeValue(value);
        }
        if (m.First.isEmpty() && m.Last.isEmpty())
            continue; // a line without a name is no player
        out.append(m);
    }
    return out;
}

RosterImport::Result RosterImport::write(myDB &db, const QString &teamID) const
{
    Result result;
    if (!canImport())
        return result;
    MemberStore store(db);
    QSet<QString> onTeam;
    for (const MemberRecord &m : store.players(teamID))
        onTeam.insert(key(m));
    QList<MemberRecord> adding;
    for (const MemberRecord &m : players(teamID)) {
        const QString k = key(m);
        if (onTeam.contains(k)) {
            result.skipped.append((m.UniNum.isEmpty() ? QString() : m.UniNum + u' ') + m.fullName().trimmed());
            continue;
        }
        onTeam.insert(k);
        adding.append(m);
    }
    result.written = db.runInTransaction([&] {
        for (const MemberRecord &m : adding)
            store.add(m);
    });
    result.added = result.written ? int(adding.size()) : 0;
    return result;
}

} // namespace people
