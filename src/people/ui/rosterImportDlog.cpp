#include "people/ui/rosterImportDlog.h"

#include "app/ui/Form.h"
#include "reports/ui/qlmListBox.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

rosterImportDlog::rosterImportDlog(const people::RosterImport &import, QWidget *parent)
    : QDialog(parent), m_import(import)
{
    setObjectName(QStringLiteral("rosterImportDlog"));
    setWindowTitle(QStringLiteral("Import Players"));
    setAccessibleName(windowTitle());
    auto *outer = new QVBoxLayout(this);
    outer->addWidget(new QLabel(QStringLiteral("Choose the file's column for each field. The list shows the first "
                                               "players as they will be added."),
                                this));
    auto *fields = new QWidget;
    auto *grid = new QGridLayout(fields);
    const QStringList heads = m_import.headings();
    const QList<people::RosterField> &rosterFields = people::rosterFields();
    for (qsizetype f = 0; f < rosterFields.size(); ++f) {
        const people::RosterField &field = rosterFields.at(f);
        QComboBox *pop = form::comboBox(fields, QStringLiteral("mapPop_") + field.column, field.heading);
        pop->addItem(QStringLiteral("(none)"), -1);
        for (int c = 0; c < heads.size(); ++c)
            pop->addItem(heads.at(c).isEmpty() ? QStringLiteral("Column %1").arg(c + 1) : heads.at(c), c);
        pop->setCurrentIndex(pop->findData(m_import.mapping.value(f, -1)));
        const int row = int(f) / 2;
        const int col = int(f) % 2 * 2;
        grid->addWidget(form::buddyLabel(pop, field.heading + u':', fields), row, col);
        grid->addWidget(pop, row, col + 1);
        connect(pop, &QComboBox::currentIndexChanged, this, [this, f, pop] {
            m_import.mapping[f] = pop->currentData().toInt();
            showPreview();
        });
        mapPops.append(pop);
    }
    auto *scroll = new QScrollArea(this);
    scroll->setWidget(fields);
    scroll->setWidgetResizable(true);
    outer->addWidget(scroll, 2);

    previewList = qlmListBox::make(this, QStringLiteral("previewList"), QStringLiteral("First players"), {}, {});
    outer->addWidget(previewList, 1);
    countLbl = form::valueLabel(this, QStringLiteral("countLbl"), QStringLiteral("Players in the file"));
    outer->addWidget(countLbl);
    importBtn = form::button(this, QStringLiteral("importBtn"), QStringLiteral("&Import"));
    importBtn->setDefault(true);
    cancelBtn = form::button(this, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    outer->addLayout(form::row({nullptr, cancelBtn, importBtn}));
    connect(importBtn, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelBtn, &QPushButton::clicked, this, &QDialog::reject);
    resize(640, 620);
    showPreview();
}

void rosterImportDlog::showPreview()
{
    // The matched fields only, in the fields' order.
    const QList<people::RosterField> &rosterFields = people::rosterFields();
    QStringList headings;
    QList<int> shown;
    for (qsizetype f = 0; f < rosterFields.size(); ++f) {
        if (m_import.mapping.value(f, -1) >= 0) {
            headings.append(rosterFields.at(f).heading);
            shown.append(int(f));
        }
    }
    previewList->deleteAllRows();
    previewList->setColumnCount(int(headings.size()));
    previewList->setHeadings(headings);
    const QList<people::MemberRecord> players = m_import.players(QString());
    const QByteArray csv = people::rosterCsv(players.mid(0, kPreviewRows));
    // The export's own cells, so the list shows exactly what will be stored.
    const support::csv::Table table = support::csv::parse(csv);
    for (qsizetype r = 1; r < table.rows.size(); ++r) {
        QStringList cells;
        for (int f : shown)
            cells.append(table.rows.at(r).value(f));
        previewList->addRow(cells);
    }
    countLbl->setText(QStringLiteral("%1 players in the file").arg(players.size()));
    importBtn->setEnabled(m_import.canImport());
}
