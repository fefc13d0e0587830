#pragma once

// The window shown before a game is recorded: four checks and each team's
// box-score proof, each with a green tick or a red cross, and a warning
// about recording. The checks warn and don't bar: the coach records or
// cancels.

#include "stats/BoxProof.h"

#include <QDialog>

#include <array>

class QLabel;
class QPushButton;

// One check's mark: a green tick when passed, else a red cross.
class CheckMark : public QWidget
{
    Q_OBJECT

public:
    explicit CheckMark(QWidget *parent = nullptr);
    void setPassed(bool passed);
    bool passed() const { return m_passed; }
    QSize sizeHint() const override { return {24, 24}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_passed = false;
};

class finalCheckScrn : public QDialog
{
    Q_OBJECT

public:
    explicit finalCheckScrn(QWidget *parent = nullptr);

    // The score that will be recorded, shown under the title: team A
    // (batting first) and its runs, then team B.
    void setScore(const QString &teamA, const QString &runsA, const QString &teamB, const QString &runsB);
    // The box-score proof line of each team, team A first.
    void setBoxProofs(const std::array<stats::BoxProof, 2> &proofs, const std::array<QString, 2> &teams);
    // Shows the checks modally; true when the coach chose to record.
    bool showMe(const std::array<bool, 4> &checks);

    bool result = false;
    std::array<bool, 4> passed{};

    // The texts of the four checks, in order.
    static const std::array<QString, 4> &checkTexts();

private:
    QLabel *titleLabel = nullptr;
    QLabel *scoreLabel = nullptr;
    std::array<QLabel *, 4> checkLabel{};
    std::array<CheckMark *, 4> checkCnv{};
    std::array<QLabel *, 2> proofLabel{};
    std::array<CheckMark *, 2> proofCnv{};
    QLabel *warnLabel = nullptr;
    QPushButton *cancelBtn = nullptr;
    QPushButton *recordBtn = nullptr;
};
