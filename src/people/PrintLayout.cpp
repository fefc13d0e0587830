#include "people/PrintLayout.h"

#include "app/globals.h"
#include "people/PeopleText.h"
#include "platform/Services.h"

#include <QFontMetricsF>
#include <QPainter>

namespace people {

namespace {

constexpr qreal kGap = 6; // between a column's text and the next column

PrintItem textAt(qreal x, qreal y, const QString &text, qreal maxWidth)
{
    PrintItem item;
    item.at = {x, y};
    item.text = text;
    item.maxWidth = maxWidth;
    return item;
}

PrintItem pictureAt(qreal x, qreal y, const QImage &picture, QSizeF size)
{
    PrintItem item;
    item.at = {x, y};
    item.picture = picture;
    item.pictureSize = size;
    return item;
}

QString shownPhone(const QString &phone)
{
    return formatThroughMask(phone, phoneMaskFor(phone));
}

// "City, ST 12345"; nothing at all when the three are empty, rather than
// a lone comma.
QString cityLine(const QString &city, const QString &state, const QString &zip)
{
    if (city.isEmpty() && state.isEmpty() && zip.isEmpty())
        return {};
    return city + QStringLiteral(", ") + state + u' ' + zip;
}

QFont printTextFont()
{
    return platform::printFont(QFont(), 12);
}

} // namespace

QList<PrintBlock> teamDataBlocks(const QList<TeamRecord> &teams, bool withLogo, const QImage &placeholder,
                                 int pageWidth)
{
    const qreal half = pageWidth / 2.0;
    const qreal textWidth = withLogo ? half - kGap : pageWidth;
    QList<PrintBlock> blocks;
    for (const TeamRecord &t : teams) {
        PrintBlock b;
        b.append(textAt(0, 0, t.SchoolName + u' ' + t.TeamName, textWidth));
        b.append(textAt(0, 16, t.League + QStringLiteral(" League"), textWidth));
        b.append(textAt(0, 32, t.Division + QStringLiteral(" Division"), textWidth));
        b.append(textAt(0, 48, t.SchoolAddress, textWidth));
        b.append(textAt(0, 64, t.SchoolAddress1, textWidth));
        b.append(textAt(0, 80, cityLine(t.SchoolCity, t.SchoolState, t.SchoolZip), textWidth));
        b.append(textAt(0, 96, shownPhone(t.Phone), textWidth));
        b.append(textAt(0, 112, QStringLiteral("Home Field: ") + t.HomeField, textWidth));
        if (withLogo)
            b.append(pictureAt(half, 0, t.TeamLogo.isNull() ? placeholder : t.TeamLogo, {144, 144}));
        blocks.append(b);
    }
    return blocks;
}

QList<PrintBlock> playerDataBlocks(const QList<MemberRecord> &players, bool withPhoto, const QImage &generic,
                                   int pageWidth)
{
    const qreal half = pageWidth / 2.0;
    const qreal third = pageWidth / 3.0;
    const qreal leftWidth = half - kGap;
    const qreal columnWidth = third - kGap;
    QList<PrintBlock> blocks;
    for (const MemberRecord &p : players) {
        PrintBlock b;
        b.append(textAt(0, 0, p.First + u' ' + p.Last, leftWidth));
        if (withPhoto)
            b.append(pictureAt(half, 0, p.picture.isNull() ? generic : p.picture, {86, 100}));
        b.append(textAt(0, 16, p.Address, leftWidth));
        b.append(textAt(0, 32, p.Address1, leftWidth));
        b.append(textAt(0, 48, cityLine(p.City, p.State, p.Zip), leftWidth));
        b.append(textAt(0, 64, QStringLiteral("Phone: ") + p.PhoneNumber, leftWidth));
        b.append(textAt(0, 80, QStringLiteral("Cell: ") + p.CellPhone, leftWidth));
        b.append(textAt(0, 96, QStringLiteral("Email: ") + p.Email, leftWidth));

        const QString rows[3][3] = {
            {QStringLiteral("DATA---"), QStringLiteral("Uniform #") + p.UniNum, QStringLiteral("Pos 1: ") + p.Pos1},
            {QStringLiteral("Bats: ") + p.HitSide, QStringLiteral("DOB: ") + p.DOB, QStringLiteral("Pos 2: ") + p.Pos2},
            {QStringLiteral("Throws: ") + p.ThrowSide, QStringLiteral("ID: ") + p.StudentID,
             QStringLiteral("Pos 3: ") + p.Pos3},
        };
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 3; ++c)
                b.append(textAt(c * third, 128 + r * 16, rows[r][c], columnWidth));
        }

        b.append(textAt(0, 192, QStringLiteral("Guardian: ") + p.Guardian, leftWidth));
        b.append(textAt(half, 192, QStringLiteral("Phone: ") + p.GuardianPhone, half));
        b.append(textAt(0, 208, QStringLiteral("Emerg Contact: ") + p.EmergContact, leftWidth));
        b.append(textAt(half, 208, QStringLiteral("Phone: ") + p.EmergPhone, half));
        b.append(textAt(0, 224, p.Doctor, leftWidth));
        b.append(textAt(half, 224, QStringLiteral("Phone: ") + p.DoctorPhone, half));
        blocks.append(b);
    }
    return blocks;
}

void paintBlocks(platform::PrintJob &job, const QList<PrintBlock> &blocks, int step)
{
    const platform::PrinterSetup &setup = job.setup();
    const QList<int> tops = gCreateVertPrinterPts(setup, step);
    QPainter &p = job.painter();
    const QFont font = printTextFont();
    const QFontMetricsF metrics(font);
    p.setFont(font);
    p.setPen(Qt::black);
    p.setRenderHint(QPainter::SmoothPixmapTransform);

    qsizetype slot = 0;
    for (const PrintBlock &block : blocks) {
        if (slot == tops.size()) {
            job.newPage();
            slot = 0;
        }
        const qreal top = setup.top() + tops.at(slot++);
        for (const PrintItem &item : block) {
            const QPointF at(setup.left() + item.at.x(), top + item.at.y());
            if (!item.picture.isNull()) {
                const QSizeF fitted = QSizeF(item.picture.size()).scaled(item.pictureSize, Qt::KeepAspectRatio);
                p.drawImage(QRectF(at, fitted), item.picture);
                continue;
            }
            if (item.text.isEmpty())
                continue;
            const QString text = item.maxWidth > 0 ? TruncateStr(metrics, item.text, item.maxWidth) : item.text;
            p.drawText(QPointF(at.x(), at.y() + metrics.ascent()), text);
        }
    }
}

bool runPrint(const QString &jobTitle, const std::function<void(platform::PrintJob &)> &drawCopy)
{
    std::optional<platform::PrinterSetup> setup;
    gGetPrinterSetup(setup, false);
    if (!setup)
        return false;
    std::unique_ptr<platform::PrintJob> job = platform::printing().printDialog(*setup, jobTitle);
    if (!job)
        return false;
    const int copies = std::max(1, job->copies());
    for (int copy = 0; copy < copies; ++copy) {
        if (copy > 0)
            job->newPage();
        drawCopy(*job);
    }
    if (!job->finish()) {
        gMsgBox(QStringLiteral("The printer reported an error; the printout may be incomplete."));
        return false;
    }
    return true;
}

} // namespace people
