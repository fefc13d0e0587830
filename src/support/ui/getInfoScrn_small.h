#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

// A small modal prompt for one line of text, a name as a rule. Save with a
// blank field shows a warning and beeps; Cancel (or Escape) leaves `myData`
// blank.
//
//   getInfoScrn_small ask(this);
//   const QString name = ask.getMyInfo();
class getInfoScrn_small : public QDialog
{
    Q_OBJECT

public:
    explicit getInfoScrn_small(QWidget *parent = nullptr, const QString &prompt = QStringLiteral("Name:"));

    // Runs the window modally; the text saved, or blank after Cancel.
    QString getMyInfo();

    QString myData() const { return m_data; }

private:
    void save();

    QString m_data;
    QLineEdit *dataFld = nullptr;
    QLabel *warningLbl = nullptr;
    QPushButton *saveBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
};
