#pragma once

#include "people/TeamRecord.h"

#include <QString>
#include <QStringList>

#include <functional>

class MainMenuBar;
class QComboBox;
class QWidget;

// The menu items the team and personnel screens share: printing the list,
// the printer set-up, and help, abbreviations and preferences where those
// windows are part of the program (disabled until they are).
void installPeopleMenus(MainMenuBar *menus, const QString &printText, const std::function<void()> &printList,
                        int helpTopic);

// Fills a team popup (the team's id as each entry's data) and selects the
// home team.
void fillTeamPopup(QComboBox *popup, const QList<people::TeamChoice> &teams);
