#include "people/TeamRecord.h"

#include "app/globals.h"
#include "people/PeopleText.h"
#include "people/Pictures.h"

namespace people {

Fields TeamRecord::toFields() const
{
    return {
        {QStringLiteral("TeamName"), cleanName(TeamName)},
        {QStringLiteral("SchoolName"), cleanName(SchoolName)},
        {QStringLiteral("League"), League},
        {QStringLiteral("Division"), Division},
        {QStringLiteral("SchoolAddress"), SchoolAddress},
        {QStringLiteral("SchoolAddress1"), SchoolAddress1},
        {QStringLiteral("SchoolCity"), SchoolCity},
        {QStringLiteral("SchoolZip"), SchoolZip},
        {QStringLiteral("SchoolState"), SchoolState},
        {QStringLiteral("Phone"), Phone},
        {QStringLiteral("HomeField"), HomeField},
        {QStringLiteral("Active"), gBool2Int(Active)},
        {QStringLiteral("TeamLogo"), TeamLogo.isNull() ? QVariant() : QVariant(toPng(TeamLogo))},
    };
}

TeamRecord TeamRecord::fromRecord(const Record &row)
{
    TeamRecord t;
    t.teamID = row.text(QStringLiteral("teamID"));
    t.TeamName = row.text(QStringLiteral("TeamName"));
    t.SchoolName = row.text(QStringLiteral("SchoolName"));
    t.League = row.text(QStringLiteral("League"));
    t.Division = row.text(QStringLiteral("Division"));
    t.SchoolAddress = row.text(QStringLiteral("SchoolAddress"));
    t.SchoolAddress1 = row.text(QStringLiteral("SchoolAddress1"));
    t.SchoolCity = row.text(QStringLiteral("SchoolCity"));
    t.SchoolZip = row.text(QStringLiteral("SchoolZip"));
    t.SchoolState = row.text(QStringLiteral("SchoolState"));
    t.Phone = row.text(QStringLiteral("Phone"));
    t.HomeField = row.text(QStringLiteral("HomeField"));
    t.Active = row.integer(QStringLiteral("Active")) != 0;
    t.TeamLogo = fromBlob(row.blob(QStringLiteral("TeamLogo")));
    return t;
}

} // namespace people
