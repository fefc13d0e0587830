#include "stats/ui/AutoFillPitchScrn.h"

#include "app/ui/Form.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

AutoFillPitchScrn::AutoFillPitchScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("AutoFillPitchScrn"));
    setWindowTitle(QStringLiteral("Pitching Stats Auto-Fill"));
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    const QString instructions =
        QStringLiteral(
            "Tallyline Baseball can automatically calculate 8 of the pitching stats (in red) for the currently "
            "selected pitcher. ") +
        QStringList{QStringLiteral("NOTE: Be sure to double check the stats before accepting them as varying game "
                                   "situations may render the stats inaccurate."),
                    QStringLiteral("To Begin:"),
                    QStringLiteral("> When ready, click the \u2018Continue\u2019 button"),
                    QStringLiteral("> When presented with the score card, 1) click on the 1st AB which this pitcher "
                                   "threw, and 2) click on the last AB for which this pitcher was responsible."),
                    QStringLiteral("> Double check the auto-filled totals"),
                    QStringLiteral("> Enter other stats as desired"),
                    QStringLiteral("> Close the Pitching Stats Screen")}
            .join(u'\n');
    auto *instr = form::valueLabel(this, QStringLiteral("InstrucLbl"), tr("Instructions"));
    instr->setText(instructions);
    instr->setWordWrap(true);
    auto *warn = form::valueLabel(this, QStringLiteral("warnLbl"), tr("Warning"));
    warn->setText(
        QStringLiteral("* If all ABs for this game have not been entered, the data acquired by this action will "
                       "be meaningless.\n** The best results will be obtained by entering stats for the "
                       "pitchers in the order they worked."));
    warn->setWordWrap(true);
    layout->addWidget(instr);
    layout->addWidget(warn);
    auto *buttons = new QHBoxLayout;
    QPushButton *cancel = form::button(this, QStringLiteral("cancelBtn"), tr("Cancel"));
    QPushButton *cont = form::button(this, QStringLiteral("ContBtn"), tr("Continue"));
    cont->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(cont);
    layout->addLayout(buttons);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cont, &QPushButton::clicked, this, [this] {
        m_doContinue = true;
        accept();
    });
    resize(460, sizeHint().height());
}

bool AutoFillPitchScrn::getMyAction(QWidget *parent)
{
    AutoFillPitchScrn window(parent);
    window.exec();
    return window.doContinue();
}
