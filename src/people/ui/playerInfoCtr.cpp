#include "people/ui/playerInfoCtr.h"

#include "app/globals.h"
#include "app/myPrefs.h"
#include "app/ui/Form.h"
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

using namespace Qt::StringLiterals;

namespace {

// Selects the row with that text; a text the popup doesn't hold selects
// its first row.
void selectText(QComboBox *box, const QString &text)
{
    box->setCurrentIndex(std::max(0, box->findText(text, Qt::MatchExactly)));
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

    // Playing data
    auto *playing = new QWidget(infoTabs);
    form::Grid grid(playing, new QGridLayout(playing));
    UNumFld = grid.add(0, 0, u"&Uniform #:"_s, form::lineEdit(playing, u"UNumFld"_s, u"Uniform number"_s));
    UNumFld->setMaxLength(4);
    StudentIDFld = grid.add(0, 2, u"Student &ID:"_s, form::lineEdit(playing, u"StudentIDFld"_s, u"Student ID"_s));
    for (int i = 0; i < 3; ++i)
        PositionPop[i] = grid.add(1 + i, 0, u"Pos &%1:"_s.arg(i + 1),
                                  form::comboBox(playing, u"PositionPop_%1"_s.arg(i), u"Position %1"_s.arg(i + 1)));
    batPop = grid.add(1, 2, u"&Bats:"_s, form::comboBox(playing, u"batPop"_s, u"Bats"_s));
    batPop->addItems({u"Right"_s, u"Left"_s, u"Switch"_s});
    throwPop = grid.add(2, 2, u"&Throws:"_s, form::comboBox(playing, u"throwPop"_s, u"Throws"_s));
    throwPop->addItems({u"Right"_s, u"Left"_s});
    DOBFld = form::lineEdit(playing, u"DOBFld"_s, u"Date of birth, month/day/year"_s);
    DOBFld->setInputMask(QString::fromUtf16(people::kDobMask));
    DOBFld->setToolTip(u"Month/day/year"_s);
    ageLabel = form::valueLabel(playing, u"ageLabel"_s, u"Age"_s);
    grid.layout()->addWidget(form::buddyLabel(DOBFld, u"&DOB:"_s, playing), 3, 2);
    grid.layout()->addLayout(form::row({DOBFld, ageLabel}), 3, 3);
    grid.layout()->setColumnStretch(1, 1);
    grid.layout()->setColumnStretch(3, 1);
    grid.layout()->setRowStretch(4, 1);
    infoTabs->addTab(playing, u"Playing"_s);

    // People to call
    auto *contacts = new QWidget(infoTabs);
    form::Grid cgrid(contacts, new QGridLayout(contacts));
    const struct
    {
        QLineEdit *&field;
        QString name, caption, spoken;
    } callers[] = {{guardianFld, u"guardianFld"_s, u"&Guardian:"_s, u"Guardian"_s},
                   {emergFld, u"emergFld"_s, u"&Emergency:"_s, u"Emergency contact"_s},
                   {doctorFld, u"doctorFld"_s, u"D&octor:"_s, u"Doctor"_s}};
    for (int i = 0; i < 3; ++i) {
        callers[i].field = cgrid.add(i, 0, callers[i].caption,
                                     form::lineEdit(contacts, callers[i].name, callers[i].spoken));
        contactPhone[i] = cgrid.add(i, 2, u"Phone &%1:"_s.arg(i + 1),
                                    form::make<iPhoneField>(contacts, u"contactPhone_%1"_s.arg(i),
                                                            callers[i].spoken + u"'s phone"_s));
    }
    cgrid.layout()->setColumnStretch(1, 2);
    cgrid.layout()->setColumnStretch(3, 1);
    cgrid.layout()->setRowStretch(3, 1);
    infoTabs->addTab(contacts, u"Contacts"_s);

    // Medical and notes
    auto *notes = new QWidget(infoTabs);
    form::Rows nrows(notes, new QFormLayout(notes));
    medicalFld = nrows.add(u"medicalFld"_s, u"&Medical:"_s, new QLineEdit(notes));
    plNotesFld = nrows.add(u"plNotesFld"_s, u"&Notes:"_s, new QPlainTextEdit(notes));
    // Tab leaves the notes, as in every other field.
    plNotesFld->setTabChangesFocus(true);
    infoTabs->addTab(notes, u"Medical && Notes"_s);

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
