#pragma once

#include "app/myDB.h"

#include <QImage>
#include <QString>

namespace people {

// One row of table Teams, as the team screen edits it.
struct TeamRecord
{
    QString teamID; // decimal text; empty for a team not yet saved
    QString TeamName;
    QString SchoolName;
    QString League;
    QString Division;
    QString SchoolAddress;
    QString SchoolAddress1;
    QString SchoolCity;
    QString SchoolZip;
    QString SchoolState;
    QString Phone;
    QString HomeField;
    bool Active = true;
    QImage TeamLogo;

    // "School Team", as lists and messages show a team.
    QString fullName() const { return SchoolName + u' ' + TeamName; }

    // Every column but the key, names cleaned and the logo as PNG.
    Fields toFields() const;
    static TeamRecord fromRecord(const Record &row);
};

// A row of the team list.
struct TeamListRow
{
    QString teamID;
    QString SchoolName;
    QString TeamName;
};

// A team as the team popups offer it: its name and its id.
struct TeamChoice
{
    QString teamID;
    QString TeamName;
};

} // namespace people
