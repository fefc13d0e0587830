#include "people/MemberRecord.h"

#include "app/globals.h"
#include "people/PeopleText.h"
#include "people/Pictures.h"

namespace people {

QString MemberRecord::table(MemberKind kind)
{
    return kind == MemberKind::Player ? QStringLiteral("Players") : QStringLiteral("Coaches");
}

QString MemberRecord::keyColumn(MemberKind kind)
{
    return kind == MemberKind::Player ? QStringLiteral("playerID") : QStringLiteral("coachID");
}

QString MemberRecord::pictureColumn(MemberKind kind)
{
    return kind == MemberKind::Player ? QStringLiteral("PlayerPic") : QStringLiteral("CoachPic");
}

Fields MemberRecord::toFields() const
{
    bool numeric = false;
    const qint64 team = TeamNum.toLongLong(&numeric);
    Fields f = {
        {QStringLiteral("TeamNum"), numeric ? QVariant(team) : QVariant(TeamNum)},
        {QStringLiteral("First"), cleanName(First)},
        {QStringLiteral("Last"), cleanName(Last)},
        {QStringLiteral("Address"), Address},
        {QStringLiteral("Address1"), Address1},
        {QStringLiteral("City"), City},
        {QStringLiteral("State"), State},
        {QStringLiteral("Zip"), Zip},
        {QStringLiteral("PhoneNumber"), PhoneNumber},
        {QStringLiteral("CellPhone"), CellPhone},
        {QStringLiteral("Email"), Email},
        {QStringLiteral("Active"), gBool2Int(Active)},
        {pictureColumn(kind), picture.isNull() ? QVariant() : QVariant(toPng(picture))},
    };
    if (kind == MemberKind::Coach) {
        f.append({QStringLiteral("Assistant"), gBool2Int(Assistant)});
        return f;
    }
    // The uniform number travels in the game strings beside the names.
    f.append({QStringLiteral("UniNum"), cleanName(UniNum)});
    f.append({QStringLiteral("Pos1"), Pos1});
    f.append({QStringLiteral("Pos2"), Pos2});
    f.append({QStringLiteral("Pos3"), Pos3});
    f.append({QStringLiteral("HitSide"), HitSide});
    f.append({QStringLiteral("ThrowSide"), ThrowSide});
    f.append({QStringLiteral("DOB"), DOB});
    f.append({QStringLiteral("StudentID"), StudentID});
    f.append({QStringLiteral("Guardian"), Guardian});
    f.append({QStringLiteral("GuardianPhone"), GuardianPhone});
    f.append({QStringLiteral("EmergContact"), EmergContact});
    f.append({QStringLiteral("EmergPhone"), EmergPhone});
    f.append({QStringLiteral("Doctor"), Doctor});
    f.append({QStringLiteral("DoctorPhone"), DoctorPhone});
    f.append({QStringLiteral("MedInfo"), MedInfo});
    f.append({QStringLiteral("PlayerNotes"), PlayerNotes});
    return f;
}

MemberRecord MemberRecord::fromRecord(MemberKind kind, const Record &row)
{
    MemberRecord m;
    m.kind = kind;
    auto text = [&row](const char *column) { return row.text(QString::fromLatin1(column)); };
    m.id = text(kind == MemberKind::Player ? "playerID" : "coachID");
    m.TeamNum = text("TeamNum");
    m.First = text("First");
    m.Last = text("Last");
    m.Address = text("Address");
    m.Address1 = text("Address1");
    m.City = text("City");
    m.State = text("State");
    m.Zip = text("Zip");
    m.PhoneNumber = text("PhoneNumber");
    m.CellPhone = text("CellPhone");
    m.Email = text("Email");
    m.Active = row.integer(QStringLiteral("Active")) != 0;
    m.picture = fromBlob(row.blob(pictureColumn(kind)));
    if (kind == MemberKind::Coach) {
        m.Assistant = row.integer(QStringLiteral("Assistant")) != 0;
        return m;
    }
    m.UniNum = text("UniNum");
    m.Pos1 = text("Pos1");
    m.Pos2 = text("Pos2");
    m.Pos3 = text("Pos3");
    m.HitSide = text("HitSide");
    m.ThrowSide = text("ThrowSide");
    m.DOB = text("DOB");
    m.StudentID = text("StudentID");
    m.Guardian = text("Guardian");
    m.GuardianPhone = text("GuardianPhone");
    m.EmergContact = text("EmergContact");
    m.EmergPhone = text("EmergPhone");
    m.Doctor = text("Doctor");
    m.DoctorPhone = text("DoctorPhone");
    m.MedInfo = text("MedInfo");
    m.PlayerNotes = text("PlayerNotes");
    return m;
}

} // namespace people
