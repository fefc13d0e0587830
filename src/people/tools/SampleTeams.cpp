#include "SampleTeams.h"

#include "app/globals.h"
#include "people/RosterBook.h"
#include "people/TeamBook.h"

#include <QPainter>
#include <QPainterPath>

namespace sample {

QImage crest(const QString &initials, QColor field, QColor ring)
{
    QImage image(240, 240, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(ring);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(8, 8, 224, 224));
    p.setBrush(field);
    p.drawEllipse(QRectF(24, 24, 192, 192));
    QFont font = p.font();
    font.setPixelSize(92);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(24, 24, 192, 192), Qt::AlignCenter, initials);
    return image;
}

QImage portrait(QColor jersey, QColor skin, const QString &number)
{
    QImage image(172, 200, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 200);
    sky.setColorAt(0, QColor(196, 220, 240));
    sky.setColorAt(1, QColor(150, 190, 150));
    p.fillRect(image.rect(), sky);
    p.setPen(Qt::NoPen);
    p.setBrush(jersey);
    QPainterPath body;
    body.moveTo(20, 200);
    body.cubicTo(20, 140, 50, 125, 86, 125);
    body.cubicTo(122, 125, 152, 140, 152, 200);
    p.drawPath(body);
    p.setBrush(skin);
    p.drawEllipse(QRectF(56, 46, 60, 72));
    p.setBrush(jersey.darker(140));
    p.drawChord(QRectF(52, 36, 68, 50), 0, 180 * 16); // the cap
    p.drawRect(QRectF(86, 56, 44, 8));
    QFont font = p.font();
    font.setPixelSize(34);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(20, 140, 132, 56), Qt::AlignCenter, number);
    return image;
}

void seedTeams()
{
    people::TeamBook teams(*gData, *gPrefs);
    if (teams.store().count() > 0)
        return;
    struct T
    {
        const char *school, *name, *league, *division, *address, *city, *zip, *phone, *field, *initials;
        QColor colour, ring;
    };
    const T list[] = {
        {"Dublin Jerome", "Celtics", "OCC", "Cardinal", "8300 Hyland-Croy Rd", "Dublin", "43016", "6148735250",
         "Celtic Field", "DJ", QColor(0, 104, 71), QColor(20, 20, 20)},
        {"Hilliard Davidson", "Wildcats", "OCC", "Cardinal", "5100 Davidson Rd", "Hilliard", "43026", "6149212400",
         "Davidson Park", "HD", QColor(140, 20, 30), QColor(200, 170, 60)},
        {"Olentangy Liberty", "Patriots", "OCC", "Buckeye", "3584 Home Rd", "Powell", "43065", "7408335700",
         "Liberty Diamond", "OL", QColor(20, 50, 120), QColor(190, 30, 40)},
        {"Bishop O'Connell", "Knights", "CCL", "North", "12 St. Mary's Way", "Columbus", "43215", "6142240011",
         "O'Connell Field", "BO", QColor(90, 40, 130), QColor(210, 180, 60)},
        {"St. Charles Prep", "Cardinals", "CCL", "South", "2010 E Broad St", "Columbus", "43209", "6142521528",
         "Carlile Field", "SC", QColor(190, 20, 30), QColor(240, 240, 240)},
    };
    QString home;
    for (const T &t : list) {
        people::TeamRecord r;
        r.SchoolName = QString::fromUtf8(t.school);
        r.TeamName = QString::fromUtf8(t.name);
        r.League = QString::fromUtf8(t.league);
        r.Division = QString::fromUtf8(t.division);
        r.SchoolAddress = QString::fromUtf8(t.address);
        r.SchoolCity = QString::fromUtf8(t.city);
        r.SchoolState = QStringLiteral("OH");
        r.SchoolZip = QString::fromUtf8(t.zip);
        r.Phone = QString::fromUtf8(t.phone);
        r.HomeField = QString::fromUtf8(t.field);
        r.TeamLogo = crest(QString::fromUtf8(t.initials), t.colour, t.ring);
        const auto saved = teams.save(r, home.isEmpty());
        if (home.isEmpty())
            home = saved.teamID;
    }

    people::RosterBook roster(*gData);
    struct P
    {
        const char *first, *last, *number, *pos1, *pos2, *bats, *throws, *dob, *street;
    };
    const P players[] = {
        {"Mateo", "Hernández", "2", "SS", "B2", "Right", "Right", "04/16/2009", "41 Tullymore Dr"},
        {"Liam", "O'Sullivan", "7", "CF", "LF", "Left", "Left", "09/02/2008", "7702 Cosgray Rd"},
        {"Noah", "Kowalski", "11", "RHP", "B1", "Right", "Right", "01/23/2009", "5560 Brand Rd"},
        {"Ethan", "Nguyen", "14", "C", "", "Right", "Right", "06/30/2008", "912 Glick Rd"},
        {"Jackson", "Reyes", "18", "B3", "RHP", "Switch", "Right", "11/11/2008", "330 Post Rd"},
        {"Owen", "Schäfer", "21", "LHP", "RF", "Left", "Left", "03/05/2010", "66 Riverside Dr"},
        {"Caleb", "Washington", "23", "B1", "DH", "Left", "Right", "07/19/2009", "1500 Avery Rd"},
        {"Lucas", "Brennan", "27", "LF", "CF", "Right", "Right", "12/01/2008", "87 Muirfield Dr"},
        {"Elijah", "Park", "31", "RF", "", "Right", "Right", "02/14/2010", "204 Summit View Rd"},
        {"Gabriel", "D'Amico", "34", "B2", "SS", "Right", "Right", "08/08/2009", "6110 Perimeter Dr"},
    };
    const QColor skins[] = {QColor(224, 172, 105), QColor(241, 194, 125), QColor(198, 134, 66), QColor(141, 85, 36)};
    int i = 0;
    for (const P &p : players) {
        people::MemberRecord m;
        m.kind = people::MemberKind::Player;
        m.TeamNum = home;
        m.First = QString::fromUtf8(p.first);
        m.Last = QString::fromUtf8(p.last);
        m.Address = QString::fromUtf8(p.street);
        m.City = QStringLiteral("Dublin");
        m.State = QStringLiteral("OH");
        m.Zip = QStringLiteral("43016");
        m.PhoneNumber = QStringLiteral("(614) 555-%1").arg(1200 + i * 37);
        m.CellPhone = QStringLiteral("(614) 555-%1").arg(3400 + i * 53);
        m.Email = m.First.toLower() + QStringLiteral(".family@example.com");
        m.UniNum = QString::fromUtf8(p.number);
        m.Pos1 = QString::fromUtf8(p.pos1);
        m.Pos2 = QString::fromUtf8(p.pos2);
        m.HitSide = QString::fromUtf8(p.bats);
        m.ThrowSide = QString::fromUtf8(p.throws);
        m.DOB = QString::fromUtf8(p.dob);
        m.StudentID = QStringLiteral("DJ-%1").arg(40210 + i * 7);
        m.Guardian = QStringLiteral("Pat ") + m.Last;
        m.GuardianPhone = m.PhoneNumber;
        m.EmergContact = QStringLiteral("Chris ") + m.Last;
        m.EmergPhone = QStringLiteral("(614) 555-%1").arg(7100 + i * 11);
        m.Doctor = QStringLiteral("Dr. Amelia Grant");
        m.DoctorPhone = QStringLiteral("(614) 555-0199");
        m.MedInfo = i == 1 ? QStringLiteral("Allergic to bee stings; inhaler in bag") : QString();
        m.picture = portrait(QColor(0, 104, 71), skins[i % 4], m.UniNum);
        roster.add(m);
        ++i;
    }
    for (const auto &c : {std::pair{"Dana", "McAllister"}, std::pair{"Ray", "Okafor"}}) {
        people::MemberRecord m;
        m.kind = people::MemberKind::Coach;
        m.TeamNum = home;
        m.First = QString::fromUtf8(c.first);
        m.Last = QString::fromUtf8(c.second);
        m.Assistant = m.Last == u"Okafor";
        m.City = QStringLiteral("Dublin");
        m.State = QStringLiteral("OH");
        roster.add(m);
    }
}

} // namespace sample
