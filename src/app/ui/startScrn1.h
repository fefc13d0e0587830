#pragma once

#include "app/ui/ScreenBase.h"

#include <QImage>
#include <QPointer>

class QComboBox;
class QLabel;
class QPushButton;
class MainMenuBar;
class LogoCanvas;

// The hub from which every other screen opens. There is one at a time:
// instance() makes it when none is open, and every screen that closed it
// brings it back with showStartScreen() when it closes, so the team name,
// logo and season list are read afresh on every return.
class startScrn1 : public ScreenBase
{
    Q_OBJECT

public:
    explicit startScrn1(QWidget *parent = nullptr);
    ~startScrn1() override;

    static startScrn1 *instance();
    // Shows the start screen, making it first when none is open.
    static startScrn1 *showStartScreen();

    void setLogo_Name();
    void setPopupList();

    QImage curLogo;

    MainMenuBar *menuBar() const { return menus(); }

protected:
    void showEvent(QShowEvent *event) override;

private:
    QPushButton *addTargetButton(const QString &objectName, const QString &caption, ScreenId target);
    void installMenuHandlers();
    void openTarget(ScreenId target, bool closeStart);
    void seasonChosen(int row);
    // Screens that write into the season can't open while none is open.
    void showSeasonState();
    void showAbout();

    bool m_fillingPopup = false;
    QComboBox *SelectSeasonPop = nullptr;
    QLabel *teamNameLabel = nullptr;
    // Names the season file that could not be opened; hidden while a season is open.
    QLabel *seasonProblemLabel = nullptr;
    // On a season without teams: where to begin.
    QLabel *firstStepLabel = nullptr;
    LogoCanvas *LogoHolder = nullptr;
    QPushButton *helpBtn = nullptr;
    bool m_indexJustChanged = false;
    bool m_placed = false;
    QList<std::pair<QPushButton *, ScreenId>> m_targets;
};

// Paints the home team's logo scaled to its area.
class LogoCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit LogoCanvas(QWidget *parent = nullptr);
    void setPicture(const QImage &picture);
    const QImage &picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
};
