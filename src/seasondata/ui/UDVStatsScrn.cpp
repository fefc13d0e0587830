#include "seasondata/ui/UDVStatsScrn.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
#include "seasondata/PrefLists.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace seasondata::preflists;

namespace {

struct Group
{
    const char *title;
    const char *prefix; // objectName prefix: "bat", "fld", "pitch"
    const char *spoken; // "Batting"
    int slots;
};

QList<UDSlot> slotsOf(const QList<QLineEdit *> &abbrevs, const QList<QLineEdit *> &descs)
{
    QList<UDSlot> out;
    for (qsizetype i = 0; i < abbrevs.size(); ++i)
        out.append({abbrevs.at(i)->text(), descs.at(i)->text()});
    return out;
}

// Fills the fields from a stored list; false when it doesn't hold the
// expected pairs (what it does hold is shown all the same).
bool fill(const QString &pref, const QList<QLineEdit *> &abbrevs, const QList<QLineEdit *> &descs)
{
    const QStringList pieces = pref.split(u'\t');
    for (qsizetype i = 0; i < abbrevs.size(); ++i) {
        abbrevs.at(i)->setText(pieces.value(i * 2));
        descs.at(i)->setText(pieces.value(i * 2 + 1));
    }
    return pieces.size() == abbrevs.size() * 2;
}

} // namespace

UDVStatsScrn::UDVStatsScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("UDVStatsScrn"));
    setWindowTitle(QStringLiteral("User-Defined Stats"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto *outer = new QVBoxLayout(this);
    const Group groups[] = {{"Batting", "bat", "Batting", kBattingSlots},
                            {"Fielding", "fld", "Fielding", kFieldingSlots},
                            {"Pitching", "pitch", "Pitching", kPitchingSlots}};
    QList<QLineEdit *> *abbrevLists[] = {&batAbbrev, &fldAbbrev, &pitchAbbrev};
    QList<QLineEdit *> *descLists[] = {&batDesc, &fldDesc, &pitchDesc};
    int g = 0;
    for (const Group &group : groups) {
        auto *title = new QLabel(QStringLiteral("<b>%1</b>").arg(QString::fromLatin1(group.title)), this);
        outer->addWidget(title);
        auto *layout = new QFormLayout;
        form::Rows rows(this, layout);
        for (int i = 0; i < group.slots; ++i) {
            const QString spoken = QString::fromLatin1(group.spoken) + QStringLiteral(" stat ") +
                                   QString::number(i + 1);
            const QString prefix = QString::fromLatin1(group.prefix);
            auto *abbrev = form::named(new QLineEdit(this), prefix + QStringLiteral("Abbrev") + QString::number(i),
                                       spoken + QStringLiteral(" abbreviation"));
            auto *desc = form::named(new QLineEdit(this), prefix + QStringLiteral("Desc") + QString::number(i),
                                     spoken + QStringLiteral(" description"));
            abbrev->setMaximumWidth(70);
            auto *pair = new QHBoxLayout;
            pair->addWidget(abbrev);
            pair->addWidget(desc, 1);
            rows.addRow(QStringLiteral("Stat &") + QString::number(i + 1) + u':', pair, abbrev);
            abbrevLists[g]->append(abbrev);
            descLists[g]->append(desc);
        }
        outer->addLayout(layout);
        ++g;
    }
    auto *note = new QLabel(QStringLiteral("New names show in the statistics the next time Tallyline starts."), this);
    note->setWordWrap(true);
    outer->addWidget(note);

    saveBtn = form::button(this, QStringLiteral("saveBtn"), QStringLiteral("Save"));
    saveBtn->setDefault(true);
    auto *cancel = form::button(this, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(saveBtn);
    outer->addLayout(buttons);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(saveBtn, &QPushButton::clicked, this, [this] {
        // The "shortened" message runs an event loop of its own; a second
        // Save pressed meanwhile (a screen reader can) must not save and
        // close the sheet under the first.
        if (m_saving)
            return;
        m_saving = true;
        const QPointer<UDVStatsScrn> self(this);
        saveValues();
        if (!self)
            return;
        m_saving = false;
        accept();
    });
    setMinimumWidth(460);

    setupScrn();
}

void UDVStatsScrn::setupScrn()
{
    if (!gPrefs)
        return;
    // Every list is filled, whether or not the one before it read well.
    const bool batting = fill(gPrefs->prUDB, batAbbrev, batDesc);
    const bool fielding = fill(gPrefs->prUDF, fldAbbrev, fldDesc);
    const bool pitching = fill(gPrefs->prUDP, pitchAbbrev, pitchDesc);
    const bool ok = batting && fielding && pitching;
    if (!ok)
        gMsgBox(QStringLiteral("There was an error in reading the User-Defined Values."));
}

bool UDVStatsScrn::saveValues()
{
    if (!gPrefs)
        return false;
    const JoinedUD bat = joinUD(slotsOf(batAbbrev, batDesc), splitUD(gPrefs->prUDB, kBattingSlots));
    const JoinedUD fld = joinUD(slotsOf(fldAbbrev, fldDesc), splitUD(gPrefs->prUDF, kFieldingSlots));
    const JoinedUD pitch = joinUD(slotsOf(pitchAbbrev, pitchDesc), splitUD(gPrefs->prUDP, kPitchingSlots));
    gPrefs->prUDB = bat.text;
    gPrefs->prUDF = fld.text;
    gPrefs->prUDP = pitch.text;
    gPrefs->prefsDirty = true;
    QStringList cut;
    const auto name = [&](const JoinedUD &joined, const QList<QLineEdit *> &abbrevs, const QList<QLineEdit *> &descs) {
        for (const int i : joined.cut)
            cut.append((i % 2 ? descs : abbrevs).at(i / 2)->accessibleName());
    };
    name(bat, batAbbrev, batDesc);
    name(fld, fldAbbrev, fldDesc);
    name(pitch, pitchAbbrev, pitchDesc);
    if (!cut.isEmpty()) {
        gShowMsgDlog(QStringLiteral("Some of the names were shortened to fit."),
                     QStringLiteral("Each list of user-defined names is kept in 255 bytes of the preference file; "
                                    "these were cut: ") +
                         cut.join(QStringLiteral(", ")) + u'.',
                     QStringLiteral("OK"));
        return false;
    }
    return true;
}
