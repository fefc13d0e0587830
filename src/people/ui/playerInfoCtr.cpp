#include "people/ui/playerInfoCtr.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "people/PeopleText.h"
#include "platform/Services.h"
#include "support/ui/iPhoneField.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QLineEdit *lineEdit(QWidget *parent, const char *name, const QString &accessible)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(accessible);
    return field;
}

QComboBox *popup(QWidget *parent, const QString &name, const QString &accessible, const QStringList &rows)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(name);
    box->setAccessibleName(accessible);
    box->addItems(rows);
    return box;
}

// Selects the row with that text; a text the popup doesn't hold selects
// its first row.
void selectText(QComboBox *box, const QString &text)
{
    box->setCurrentIndex(std::max(0, box->findText(text, Qt::MatchExactly)));
}

QLabel *buddyLabel(const QString &caption, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

} // namespace

playerInfoCtr::playerInfoCtr(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("myPlayerCtr"));
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    infoTabs = new QTabWidget(this);
    infoTabs->setObjectName(QStringLiteral("infoTabs"));
    infoTabs->setAccessibleName(QStringLiteral("Player information"));
    outer->addWidget(infoTabs);

    // Playing data ------------------------------------------------------------
    auto *playing = new QWidget(infoTabs);
    auto *grid = new QGridLayout(playing);
    UNumFld = lineEdit(playing, "UNumFld", QStringLiteral("Uniform number"));
    UNumFld->setMaxLength(4);
    for (int i = 0; i < 3; ++i)
        PositionPop[i] = popup(playing, QStringLiteral("PositionPop_%1").arg(i),
                               QStringLiteral("Position %1").arg(i + 1), {});
    batPop = popup(playing, QStringLiteral("batPop"), QStringLiteral("Bats"),
                   {QStringLiteral("Right"), QStringLiteral("Left"), QStringLiteral("Switch")});
    throwPop = popup(playing, QStringLiteral("throwPop"), QStringLiteral("Throws"),
                     {QStringLiteral("Right"), QStringLiteral("Left")});
    DOBFld = lineEdit(playing, "DOBFld", QStringLiteral("Date of birth, month/day/year"));
    DOBFld->setInputMask(QString::fromUtf16(people::kDobMask));
    DOBFld->setToolTip(QStringLiteral("Month/day/year"));
    ageLabel = new QLabel(playing);
    ageLabel->setObjectName(QStringLiteral("ageLabel"));
    ageLabel->setAccessibleName(QStringLiteral("Age"));
    StudentIDFld = lineEdit(playing, "StudentIDFld", QStringLiteral("Student ID"));

    grid->addWidget(buddyLabel(QStringLiteral("&Uniform #:"), UNumFld, playing), 0, 0);
    grid->addWidget(UNumFld, 0, 1);
    grid->addWidget(buddyLabel(QStringLiteral("Student &ID:"), StudentIDFld, playing), 0, 2);
    grid->addWidget(StudentIDFld, 0, 3);
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(buddyLabel(QStringLiteral("Pos &%1:").arg(i + 1), PositionPop[i], playing), 1 + i, 0);
        grid->addWidget(PositionPop[i], 1 + i, 1);
    }
    grid->addWidget(buddyLabel(QStringLiteral("&Bats:"), batPop, playing), 1, 2);
    grid->addWidget(batPop, 1, 3);
    grid->addWidget(buddyLabel(QStringLiteral("&Throws:"), throwPop, playing), 2, 2);
    grid->addWidget(throwPop, 2, 3);
    grid->addWidget(buddyLabel(QStringLiteral("&DOB:"), DOBFld, playing), 3, 2);
    auto *dobRow = new QHBoxLayout;
    dobRow->addWidget(DOBFld);
    dobRow->addWidget(ageLabel);
    grid->addLayout(dobRow, 3, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(4, 1);
    infoTabs->addTab(playing, QStringLiteral("Playing"));

    // People to call ------------------------------------------------------------
    auto *contacts = new QWidget(infoTabs);
    auto *cgrid = new QGridLayout(contacts);
    guardianFld = lineEdit(contacts, "guardianFld", QStringLiteral("Guardian"));
    emergFld = lineEdit(contacts, "emergFld", QStringLiteral("Emergency contact"));
    doctorFld = lineEdit(contacts, "doctorFld", QStringLiteral("Doctor"));
    QLineEdit *names[3] = {guardianFld, emergFld, doctorFld};
    const QString captions[3] = {QStringLiteral("&Guardian:"), QStringLiteral("&Emergency:"),
                                 QStringLiteral("D&octor:")};
    const QString phoneNames[3] = {QStringLiteral("Guardian's phone"), QStringLiteral("Emergency contact's phone"),
                                   QStringLiteral("Doctor's phone")};
    for (int i = 0; i < 3; ++i) {
        contactPhone[i] = new iPhoneField(contacts);
        contactPhone[i]->setObjectName(QStringLiteral("contactPhone_%1").arg(i));
        contactPhone[i]->setAccessibleName(phoneNames[i]);
        cgrid->addWidget(buddyLabel(captions[i], names[i], contacts), i, 0);
        cgrid->addWidget(names[i], i, 1);
        cgrid->addWidget(buddyLabel(QStringLiteral("Phone &%1:").arg(i + 1), contactPhone[i], contacts), i, 2);
        cgrid->addWidget(contactPhone[i], i, 3);
    }
    cgrid->setColumnStretch(1, 2);
    cgrid->setColumnStretch(3, 1);
    cgrid->setRowStretch(3, 1);
    infoTabs->addTab(contacts, QStringLiteral("Contacts"));

    // Medical and notes -----------------------------------------------------------
    auto *notes = new QWidget(infoTabs);
    auto *nform = new QFormLayout(notes);
    medicalFld = lineEdit(notes, "medicalFld", QStringLiteral("Medical information"));
    plNotesFld = new QPlainTextEdit(notes);
    plNotesFld->setObjectName(QStringLiteral("plNotesFld"));
    plNotesFld->setAccessibleName(QStringLiteral("Player notes"));
    // Tab leaves the notes, as in every other field.
    plNotesFld->setTabChangesFocus(true);
    nform->addRow(buddyLabel(QStringLiteral("&Medical:"), medicalFld, notes), medicalFld);
    nform->addRow(buddyLabel(QStringLiteral("&Notes:"), plNotesFld, notes), plNotesFld);
    infoTabs->addTab(notes, QStringLiteral("Medical && Notes"));

    fillPositionPop();

    for (QLineEdit *field : {UNumFld, guardianFld, emergFld, doctorFld, medicalFld, DOBFld, StudentIDFld})
        connect(field, &QLineEdit::textEdited, this, &playerInfoCtr::changed);
    for (iPhoneField *phone : contactPhone)
        connect(phone, &iPhoneField::makeDirty, this, &playerInfoCtr::changed);
    for (QComboBox *box : {PositionPop[0], PositionPop[1], PositionPop[2], batPop, throwPop})
        connect(box, &QComboBox::activated, this, &playerInfoCtr::changed);
    connect(plNotesFld, &QPlainTextEdit::textChanged, this, &playerInfoCtr::changed);
    DOBFld->installEventFilter(this);
}

void playerInfoCtr::changed()
{
    if (!isClearing)
        Q_EMIT setDirty();
}

bool playerInfoCtr::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == DOBFld && event->type() == QEvent::FocusOut && DOBFld->text().size() >= 9)
        fillAgeLabel();
    return QWidget::eventFilter(watched, event);
}

void playerInfoCtr::fillPositionPop()
{
    const QStringList positions = gPrefs ? gPrefs->prAbbrevPos.split(u',', Qt::SkipEmptyParts) : QStringList();
    for (QComboBox *box : PositionPop) {
        const QString current = box->currentText();
        box->clear();
        // A first, empty row: most players have no second or third position.
        box->addItem(QString());
        box->addItems(positions);
        selectText(box, current);
    }
}

void playerInfoCtr::fillAgeLabel()
{
    ageLabel->setText(people::ageLabel(people::dobText(DOBFld->text()), platform::clock().now().date()));
}

void playerInfoCtr::clearFlds()
{
    isClearing = true;
    for (QLineEdit *field : {UNumFld, guardianFld, emergFld, doctorFld, medicalFld, DOBFld, StudentIDFld})
        field->clear();
    for (iPhoneField *phone : contactPhone)
        phone->clear();
    plNotesFld->clear();
    for (QComboBox *box : {PositionPop[0], PositionPop[1], PositionPop[2], batPop, throwPop})
        box->setCurrentIndex(0);
    ageLabel->clear();
    infoTabs->setCurrentIndex(0);
    isClearing = false;
}

void playerInfoCtr::showPlayer(const people::MemberRecord &p)
{
    isClearing = true;
    UNumFld->setText(p.UniNum);
    selectText(PositionPop[0], p.Pos1);
    selectText(PositionPop[1], p.Pos2);
    selectText(PositionPop[2], p.Pos3);
    selectText(batPop, p.HitSide);
    selectText(throwPop, p.ThrowSide);
    DOBFld->setText(p.DOB);
    StudentIDFld->setText(p.StudentID);
    guardianFld->setText(p.Guardian);
    contactPhone[0]->setText(p.GuardianPhone);
    emergFld->setText(p.EmergContact);
    contactPhone[1]->setText(p.EmergPhone);
    doctorFld->setText(p.Doctor);
    contactPhone[2]->setText(p.DoctorPhone);
    medicalFld->setText(p.MedInfo);
    plNotesFld->setPlainText(p.PlayerNotes);
    fillAgeLabel();
    isClearing = false;
}

void playerInfoCtr::readInto(people::MemberRecord &p) const
{
    p.UniNum = UNumFld->text();
    p.Pos1 = PositionPop[0]->currentText();
    p.Pos2 = PositionPop[1]->currentText();
    p.Pos3 = PositionPop[2]->currentText();
    p.HitSide = batPop->currentText();
    p.ThrowSide = throwPop->currentText();
    p.DOB = people::dobText(DOBFld->text());
    p.StudentID = StudentIDFld->text();
    p.Guardian = guardianFld->text();
    p.GuardianPhone = contactPhone[0]->text();
    p.EmergContact = emergFld->text();
    p.EmergPhone = contactPhone[1]->text();
    p.Doctor = doctorFld->text();
    p.DoctorPhone = contactPhone[2]->text();
    p.MedInfo = medicalFld->text();
    p.PlayerNotes = plNotesFld->toPlainText();
}
