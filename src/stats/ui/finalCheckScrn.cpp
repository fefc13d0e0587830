#include "stats/ui/finalCheckScrn.h"

#include "app/ui/Form.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

CheckMark::CheckMark(QWidget *parent) : QWidget(parent)
{
    setFixedSize(sizeHint());
}

void CheckMark::setPassed(bool passed)
{
    m_passed = passed;
    update();
}

void CheckMark::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal w = width();
    const qreal h = height();
    QPainterPath path;
    if (m_passed) {
        p.setPen(QPen(QColor(0x1E, 0xA0, 0x32), 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        path.moveTo(w * 0.18, h * 0.55);
        path.lineTo(w * 0.42, h * 0.80);
        path.lineTo(w * 0.84, h * 0.20);
    } else {
        p.setPen(QPen(QColor(0xD0, 0x20, 0x20), 3.5, Qt::SolidLine, Qt::RoundCap));
        path.moveTo(w * 0.2, h * 0.2);
        path.lineTo(w * 0.8, h * 0.8);
        path.moveTo(w * 0.8, h * 0.2);
        path.lineTo(w * 0.2, h * 0.8);
    }
    p.drawPath(path);
}

const std::array<QString, 4> &finalCheckScrn::checkTexts()
{
    static const std::array<QString, 4> texts = {
        QStringLiteral("Assigned RBI's matches total runs scored"),
        QStringLiteral("Three outs recorded in every inning"),
        QStringLiteral("Every at bat assigned OUT, RUN, or LOB"),
        QStringLiteral("Fielding and Pitching data recorded"),
    };
    return texts;
}

finalCheckScrn::finalCheckScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("finalCheckScrn"));
    setWindowTitle(QStringLiteral("Record Game Data"));
    setModal(true);

    auto *layout = new QVBoxLayout(this);
    titleLabel = form::named(new QLabel(QStringLiteral("Record Game Data\nFinal Check"), this),
                             QStringLiteral("titleLabel"), QStringLiteral("Record Game Data, Final Check"));
    QFont big = titleLabel->font();
    big.setBold(true);
    big.setPointSizeF(big.pointSizeF() * 1.3);
    titleLabel->setFont(big);
    titleLabel->setAlignment(Qt::AlignCenter);
    layout->addWidget(titleLabel);
    scoreLabel = form::named(new QLabel(this), QStringLiteral("scoreLabel"), QStringLiteral("Score"));
    scoreLabel->setAlignment(Qt::AlignCenter);
    scoreLabel->hide();
    layout->addWidget(scoreLabel);

    auto *grid = new QGridLayout;
    for (int i = 0; i < 4; ++i) {
        checkCnv[i] = form::named(new CheckMark(this), QStringLiteral("checkCnv%1").arg(i), QString());
        checkLabel[i] = form::named(new QLabel(checkTexts()[i], this), QStringLiteral("checkLabel%1").arg(i),
                                    checkTexts()[i]);
        grid->addWidget(checkCnv[i], i, 0);
        grid->addWidget(checkLabel[i], i, 1);
    }
    for (int t = 0; t < 2; ++t) {
        proofCnv[t] = form::named(new CheckMark(this), QStringLiteral("proofCnv%1").arg(t), QString());
        proofLabel[t] = form::named(new QLabel(this), QStringLiteral("proofLabel%1").arg(t), QString());
        proofLabel[t]->setWordWrap(true);
        grid->addWidget(proofCnv[t], 4 + t, 0);
        grid->addWidget(proofLabel[t], 4 + t, 1);
        proofCnv[t]->hide();
        proofLabel[t]->hide();
    }
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);

    warnLabel = form::named(new QLabel(QStringLiteral("Warning: \nRecording game data will add these stats to each "
                                                      "player's data. Once recorded, this game cannot be deleted "
                                                      "from the schedule."),
                                       this),
                            QStringLiteral("warnLabel"), QStringLiteral("Warning"));
    warnLabel->setWordWrap(true);
    layout->addWidget(warnLabel);

    auto *buttons = new QHBoxLayout;
    cancelBtn = form::button(this, QStringLiteral("cancelBtn"), QStringLiteral("Cancel"));
    recordBtn = form::button(this, QStringLiteral("recordBtn"), QStringLiteral("Record"));
    // Recording can't be undone: Return cancels, recording takes a choice.
    cancelBtn->setDefault(true);
    buttons->addStretch(1);
    buttons->addWidget(cancelBtn);
    buttons->addWidget(recordBtn);
    layout->addLayout(buttons);

    connect(cancelBtn, &QPushButton::clicked, this, [this] {
        result = false;
        reject();
    });
    connect(recordBtn, &QPushButton::clicked, this, [this] {
        result = true;
        accept();
    });
    connect(this, &QDialog::rejected, this, [this] { result = false; });
}

void finalCheckScrn::setScore(const QString &teamA, const QString &runsA, const QString &teamB, const QString &runsB)
{
    scoreLabel->setText(QStringLiteral("%1 %2, %3 %4")
                            .arg(teamA, runsA.isEmpty() ? QStringLiteral("0") : runsA, teamB,
                                 runsB.isEmpty() ? QStringLiteral("0") : runsB));
    scoreLabel->setAccessibleName(QStringLiteral("Score to be recorded: ") + scoreLabel->text());
    scoreLabel->show();
}

void finalCheckScrn::setBoxProofs(const std::array<stats::BoxProof, 2> &proofs, const std::array<QString, 2> &teams)
{
    for (size_t t = 0; t < 2; ++t) {
        const QString line = QStringLiteral("Box score proof, ") + proofs[t].text(teams[t]);
        proofLabel[t]->setText(line);
        proofLabel[t]->setAccessibleName(line);
        proofCnv[t]->setPassed(proofs[t].balances());
        proofCnv[t]->setAccessibleName(proofs[t].balances() ? QStringLiteral("Passed: box score proof")
                                                            : QStringLiteral("Failed: box score proof"));
        proofCnv[t]->show();
        proofLabel[t]->show();
    }
}

bool finalCheckScrn::showMe(const std::array<bool, 4> &checks)
{
    passed = checks;
    for (int i = 0; i < 4; ++i) {
        checkCnv[i]->setPassed(passed[i]);
        checkCnv[i]->setAccessibleName((passed[i] ? QStringLiteral("Passed: ") : QStringLiteral("Failed: ")) +
                                       checkTexts()[i]);
    }
    result = false;
    exec();
    return result;
}
