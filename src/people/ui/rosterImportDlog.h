#pragma once

#include "people/RosterCsv.h"

#include <QDialog>
#include <QList>

class QComboBox;
class QLabel;
class QPushButton;
class qlmListBox;

// The column-matching step of a roster import: a popup per player field
// names the file's column it comes from, and the list below shows the
// file's first rows as they will be stored. Nothing is written until the
// coach clicks Import.
class rosterImportDlog : public QDialog
{
    Q_OBJECT

public:
    rosterImportDlog(const people::RosterImport &import, QWidget *parent = nullptr);

    // The import with the coach's matches.
    const people::RosterImport &import() const { return m_import; }

    QList<QComboBox *> mapPops; // one per people::rosterFields()

    static constexpr int kPreviewRows = 5;

private:
    void showPreview();

    people::RosterImport m_import;
    qlmListBox *previewList = nullptr;
    QLabel *countLbl = nullptr;
    QPushButton *importBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
};
