#include "stats/ui/battingCtr.h"

#include "app/globals.h"
#include "app/myPrefs.h"

#include <QLabel>

battingCtr::battingCtr(QWidget *parent)
    : StatPanel(stats::Panel::Batting, QStringLiteral("myBatCtr"), tr("Batting Stats"), parent)
{
    const QStringList captions = stats::userDefinedCaptions(gPrefs ? gPrefs->prUDB : QString(), stats::kBattingFields);
    for (int i = 0; i < stats::kBattingFields; ++i) {
        addField(i, captions.at(i), i, 0);
        fieldLabel(i)->setObjectName(QStringLiteral("mLabel_%1").arg(i));
    }
}
