#pragma once

#include <QString>

// Every window the program can open from another one. A window is opened
// by its id through the screen directory, never by a class name, so the
// subsystems don't link each other's windows.
enum class ScreenId {
    teamScrn,
    personnelScrn,
    scheduleScrn,
    gameDayScrn,      // argument: the event id of the game
    practicePlanScrn, // argument: the event id of the practice
    InventoryScrn,
    eventsCalendarScrn,
    contactInfoScrn,
    emailInfoScrn, // the mail settings
    reportIntroScrn,
    reportScrn, // opened by reportIntroScrn with the chosen columns
    standingsScrn,
    pitcherAvailabilityScrn, // opened from reportIntroScrn
    formsScrn,
    prefScrn,
    TransferDataScrn,
    backUpDlog,
    restoreDlog, // puts a chosen backup in place of the current season
    updateDlog,
    helpScrn2, // argument: the topic number, or none for the index
    HelpAbbrevScrn,
    startScrn1,      // the hub; made through startScrn1::showStartScreen()
    boxScoreScrn,    // argument: the event id of the game
    playingTimeScrn, // opened from reportIntroScrn
};

// The window's objectName: the name the program's design gives it.
QString screenName(ScreenId id);
