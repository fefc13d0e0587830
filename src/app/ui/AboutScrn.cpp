#include "app/ui/AboutScrn.h"

#include "app/AppInfo.h"

#include <QEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

AboutScrn::AboutScrn(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("AboutScrn"));
    setWindowTitle(QStringLiteral("About TLBaseball"));

    auto *layout = new QVBoxLayout(this);
    picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("aboutPicture"));
    picture->setAccessibleName(QStringLiteral("Tallyline Baseball"));
    picture->setPixmap(QPixmap(QStringLiteral(":/app/splash.png")).scaledToWidth(360, Qt::SmoothTransformation));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);

    versLabel = new QLabel(versionText(), this);
    versLabel->setObjectName(QStringLiteral("versLabel"));
    versLabel->setAlignment(Qt::AlignCenter);
    layout->addWidget(versLabel);

    creditsTxt = new QPlainTextEdit(this);
    creditsTxt->setObjectName(QStringLiteral("creditsTxt"));
    creditsTxt->setAccessibleName(QStringLiteral("Credits"));
    creditsTxt->setReadOnly(true);
    creditsTxt->setPlainText(
        QStringLiteral("Tallyline Baseball keeps a team's season: teams, players and coaches, the schedule, "
                       "the scorecard of every game, season statistics, standings, practice plans and inventory.\n\n"
                       "Built with Qt and SQLite."));
    creditsTxt->setMaximumHeight(110);
    creditsTxt->viewport()->installEventFilter(this);
    layout->addWidget(creditsTxt);

    auto *closeHint = new QLabel(QStringLiteral("Click anywhere to close."), this);
    closeHint->setAlignment(Qt::AlignCenter);
    layout->addWidget(closeHint);

    picture->installEventFilter(this);
}

QString AboutScrn::versionText()
{
    return QStringLiteral("Version ") + appinfo::curVers + QStringLiteral(": Build ") +
           appinfo::curVers.section(u'.', 0, 0);
}

void AboutScrn::mouseReleaseEvent(QMouseEvent *)
{
    close();
}

bool AboutScrn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        close();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
