#include "support/ui/expReporterScrn.h"

#include "app/AppInfo.h"
#include "app/globals.h"
#include "app/ui/Form.h"
#include "platform/Services.h"
#include "support/MailtoAddress.h"
#include "support/StackCleaner.h"

#include <QApplication>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

expReporterScrn::expReporterScrn(const QString &text, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("expReporterScrn"));
    setWindowTitle(QStringLiteral("An Error Has Occurred"));
    setModal(true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    auto *title = new QLabel(QStringLiteral("An Error Has Occurred"), this);
    QFont big = title->font();
    big.setPointSize(big.pointSize() + 4);
    big.setBold(true);
    title->setFont(big);
    layout->addWidget(title);
    auto *please = new QLabel(QStringLiteral("Please report this error so Quillmere Software can use this info to "
                                             "improve Tallyline Baseball. ONLY the info shown in the box is sent to "
                                             "Quillmere Software using your default email account.\nThank you."),
                              this);
    please->setWordWrap(true);
    layout->addWidget(please);
    auto *note = new QLabel(QStringLiteral("NOTE: Depending on the type and severity of the error, Tallyline Baseball "
                                           "may or may not be able to continue."),
                            this);
    note->setWordWrap(true);
    layout->addWidget(note);

    errFld = form::named(new QPlainTextEdit(this), QStringLiteral("errFld"), QStringLiteral("Error Message"));
    const QString today = QLocale().toString(platform::clock().now().date(), QLocale::ShortFormat);
    errFld->setPlainText(text + u'\n' + appinfo::getLongVers() + u'\n' + today + u'\n' +
                         QStringLiteral(" *Please feel free to add your comments."));
    errFld->setTabChangesFocus(true);
    layout->addWidget(form::buddyLabel(errFld, QStringLiteral("&Error Message:"), this));
    layout->addWidget(errFld, 1);
    errVersTxt = form::valueLabel(this, QStringLiteral("errVersTxt"), QStringLiteral("Version"));
    errVersTxt->setText(appinfo::getLongVers());
    layout->addWidget(errVersTxt);

    auto *buttons = new QHBoxLayout;
    quitBtn = form::button(this, QStringLiteral("quitBtn"), QStringLiteral("Quit App"));
    ignoreBtn = form::button(this, QStringLiteral("ignoreBtn"), QStringLiteral("Ignore"));
    reportBtn = form::button(this, QStringLiteral("reportBtn"), QStringLiteral("Report..."), QStringLiteral("Report"));
    buttons->addWidget(quitBtn);
    buttons->addStretch(1);
    buttons->addWidget(ignoreBtn);
    buttons->addWidget(reportBtn);
    layout->addLayout(buttons);
    resize(520, 420);

    connect(reportBtn, &QPushButton::clicked, this, [this] {
        platform::urls().openUrl(reportMail(errFld->toPlainText()));
        ignoreBtn->setText(QStringLiteral("Continue"));
        ignoreBtn->setAccessibleName(QStringLiteral("Continue"));
        reportBtn->hide();
        ignoreBtn->setFocus();
    });
    connect(ignoreBtn, &QPushButton::clicked, this, &QDialog::accept);
    connect(quitBtn, &QPushButton::clicked, this, [this] {
        Q_EMIT quitRequested();
        accept();
    });
}

void expReporterScrn::showFor(const std::exception_ptr &error)
{
    QStringList where = StackCleaner::CleanStack(StackCleaner::framesOfThrow(error));
    // Better no place than the place of an earlier error.
    if (where.isEmpty())
        where.append(QStringLiteral("Where the error began is not known."));
    const QString text = reportText(TypeOfException(error), where);
    expReporterScrn report(text, QApplication::activeWindow());
    bool quit = false;
    connect(&report, &expReporterScrn::quitRequested, &report, [&quit] { quit = true; });
    report.exec();
    if (quit)
        QCoreApplication::exit(0);
}

QString expReporterScrn::reportText(const QString &kind, const QStringList &stackLines)
{
    return QStringLiteral("Error: ") + kind + u'\n' + stackLines.join(u'\n');
}

QUrl expReporterScrn::reportMail(const QString &text)
{
    // The one builder of mailto: addresses encodes every part, so the report
    // arrives whole whatever it holds ("&", "?", "#", line ends).
    // A build without a support address leaves the recipient to the coach.
    const QString to = QStringLiteral(TALLYLINE_SUPPORT_EMAIL);
    return support::mailtoAddress(to.isEmpty() ? QStringList() : QStringList{to},
                                  appinfo::curVers + QStringLiteral(" error"), text);
}

void expReporterScrn::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    // A red frame along the edge tells this window from every other.
    QPainter p(this);
    p.setPen(QPen(QColor(255, 0, 0), 4));
    p.drawRect(rect().adjusted(2, 2, -2, -2));
}

void expReporterScrn::keyPressEvent(QKeyEvent *event)
{
    // Enter ends the program, as Quit App does; Return in the text adds a
    // line for the coach's comments.
    const bool enter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    if (enter && !errFld->hasFocus()) {
        Q_EMIT quitRequested();
        accept();
        return;
    }
    QDialog::keyPressEvent(event);
}
