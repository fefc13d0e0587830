#pragma once

#include <QDialog>
#include <QList>

class QLineEdit;
class QPushButton;

// The names of the user-defined statistics: five for batting, three for
// fielding, three for pitching, each an abbreviation (a report's column
// heading) and a description. Opened as a sheet over the preference screen.
// The counts stay in their columns whatever the names; the names reach the
// statistics lists at the next start of the program.
class UDVStatsScrn : public QDialog
{
    Q_OBJECT

public:
    explicit UDVStatsScrn(QWidget *parent = nullptr);

    void setupScrn();
    // Stores the names in the preferences; false when some had to be
    // shortened to fit (the coach is told).
    bool saveValues();

private:
    QList<QLineEdit *> batAbbrev, batDesc;
    QList<QLineEdit *> fldAbbrev, fldDesc;
    QList<QLineEdit *> pitchAbbrev, pitchDesc;
    bool m_saving = false;
    QPushButton *saveBtn = nullptr;
};
