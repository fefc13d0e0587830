#include "stats/ui/FieldingCtr.h"

#include "app/globals.h"
#include "app/myPrefs.h"

#include <QPushButton>

FieldingCtr::FieldingCtr(QWidget *parent)
    : StatPanel(stats::Panel::Fielding, QStringLiteral("myFldCtr"), tr("Fielding Stats"), parent)
{
    QStringList captions = {"IP", "CH", "PO", "Ast", "FE", "TE", "Dbl P", "PB", "SBA", "CS"};
    captions += stats::userDefinedCaptions(gPrefs ? gPrefs->prUDF : QString(), 3);
    for (int i = 0; i < stats::kFieldingFields; ++i)
        addField(i, captions.at(i), i % 7, 2 * (i / 7));
    connect(this, &StatPanel::saved, this, &FieldingCtr::updateErrs);
    closeBtn->setObjectName(QStringLiteral("Label3"));
}
