#pragma once

#include "app/myDB.h"

#include <QImage>
#include <QString>

namespace people {

enum class MemberKind { Player, Coach };

// One row of table Players or Coaches. The player-only columns are left
// alone for a coach, and Assistant for a player.
struct MemberRecord
{
    MemberKind kind = MemberKind::Player;
    QString id;      // playerID or coachID as decimal text; empty when new
    QString TeamNum; // the team's teamID as decimal text
    QString First;
    QString Last;
    QString Address;
    QString Address1;
    QString City;
    QString State;
    QString Zip;
    QString PhoneNumber;
    QString CellPhone;
    QString Email;
    bool Active = true;
    QImage picture; // PlayerPic or CoachPic

    bool Assistant = false; // coaches

    QString UniNum; // players from here on
    QString Pos1;
    QString Pos2;
    QString Pos3;
    QString HitSide;
    QString ThrowSide;
    QString DOB;
    QString StudentID;
    QString Guardian;
    QString GuardianPhone;
    QString EmergContact;
    QString EmergPhone;
    QString Doctor;
    QString DoctorPhone;
    QString MedInfo;
    QString PlayerNotes;

    QString fullName() const { return First + u' ' + Last; }

    static QString table(MemberKind kind);
    static QString keyColumn(MemberKind kind);
    static QString pictureColumn(MemberKind kind);

    // Every column of the kind's table but the key, names cleaned and the
    // picture as PNG.
    Fields toFields() const;
    static MemberRecord fromRecord(MemberKind kind, const Record &row);
};

// A row of the players' or coaches' list.
struct MemberListRow
{
    QString id;
    QString First;
    QString Last;
    QString Pos1; // players only
};

} // namespace people
