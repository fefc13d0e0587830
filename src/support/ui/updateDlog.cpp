#include "support/ui/updateDlog.h"

#include "app/AppInfo.h"
#include "app/ui/Form.h"
#include "platform/Services.h"
#include "support/UpdateCheck.h"
#include "support/cAutoUpdate.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QVBoxLayout>

updateDlog::updateDlog(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("updateDlog"));
    setWindowTitle(QStringLiteral("Check for Updates"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto *layout = new QVBoxLayout(this);
    updatetext = form::valueLabel(this, QStringLiteral("updatetext"), QStringLiteral("Update check"));
    updatetext->setWordWrap(true);
    updatetext->setText(QStringLiteral("Checking..."));
    layout->addWidget(updatetext);
    descriptionFld = form::named(new QPlainTextEdit(this), QStringLiteral("descriptionFld"),
                                 QStringLiteral("What is new"));
    descriptionFld->setReadOnly(true);
    descriptionFld->hide();
    layout->addWidget(descriptionFld, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cancelBtn = form::button(this, QStringLiteral("cancelBtn"), QStringLiteral("Later"));
    actionBtn = form::button(this, QStringLiteral("actionBtn"), QStringLiteral("Update Now"));
    actionBtn->setDefault(true);
    actionBtn->setEnabled(false); // until the answer comes
    buttons->addWidget(cancelBtn);
    buttons->addWidget(actionBtn);
    layout->addLayout(buttons);
    resize(420, 135);

    updater = new cAutoUpdate(this);
    updater->AppVersion = appinfo::curVers;
    connect(updater, &cAutoUpdate::updateAvailable, this,
            [this](const QString &version, const QString &, const QString &, const QString &description) {
                offered(version, description);
            });
    connect(updater, &cAutoUpdate::isUpToDate, this, &updateDlog::upToDate);
    connect(actionBtn, &QPushButton::clicked, this, &updateDlog::action);
    connect(cancelBtn, &QPushButton::clicked, this, &QDialog::close);
    // Asked once the window is up, so that it shows "Checking..." meanwhile.
    QTimer::singleShot(0, updater, &cAutoUpdate::CheckVersion);
}

void updateDlog::offered(const QString &version, const QString &description)
{
    updatetext->setText(QStringLiteral("Version ") + version + QStringLiteral(" of Tallyline Baseball is available."));
    descriptionFld->setPlainText(description);
    descriptionFld->show();
    actionBtn->setText(QStringLiteral("Update Now"));
    actionBtn->setAccessibleName(QStringLiteral("Update Now"));
    actionBtn->setEnabled(true);
    cancelBtn->show();
    resize(width(), 275);
}

void updateDlog::upToDate(const QString &message)
{
    updatetext->setText(message);
    cancelBtn->hide();
    actionBtn->setText(QStringLiteral("Close"));
    actionBtn->setAccessibleName(QStringLiteral("Close"));
    actionBtn->setEnabled(true);
    actionBtn->setFocus();
    resize(width(), 135);
}

void updateDlog::action()
{
    if (actionBtn->text() == u"Update Now") {
        platform::FileRequest request;
        request.prompt = QStringLiteral("Select the Save Location");
        request.initialDir = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        if (request.initialDir.isEmpty() || !QDir(request.initialDir).exists())
            request.initialDir = QDir::homePath();
        request.suggestedName = UpdateCheck::suggestedFileName(updater->UpdateVersion, updater->UpdateURL);
        const QString file = platform::files().saveFile(request);
        if (!file.isEmpty()) {
            auto *download = new wAutoUpdate(parentWidget());
            // The download outlives this window.
            updater->setParent(nullptr);
            download->Associate(updater);
            download->show();
            updater->Update(file);
        }
    }
    close();
}

wAutoUpdate::wAutoUpdate(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("wAutoUpdate"));
    setWindowTitle(QStringLiteral("Downloading"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    stTitle = form::valueLabel(this, QStringLiteral("stTitle"), QStringLiteral("Download"));
    layout->addWidget(stTitle);
    pbDownload = form::named(new QProgressBar(this), QStringLiteral("pbDownload"), QStringLiteral("Download progress"));
    layout->addWidget(pbDownload);
    stProgress = form::valueLabel(this, QStringLiteral("stProgress"), QStringLiteral("Downloaded"));
    layout->addWidget(stProgress);
    btnShowFolder = form::button(this, QStringLiteral("btnShowFolder"), QStringLiteral("Show in &Folder"));
    btnShowFolder->hide(); // until the file is there
    btnCancel = form::button(this, QStringLiteral("btnCancel"), QStringLiteral("Cancel"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(btnShowFolder);
    buttons->addWidget(btnCancel);
    layout->addLayout(buttons);
    resize(380, 130);
}

void wAutoUpdate::Associate(cAutoUpdate *updater)
{
    Updater = updater;
    updater->setParent(this);
    stTitle->setText(updater->UpdateName);
    connect(updater, &cAutoUpdate::downloadProgress, this, [this](qint64 received, qint64 total) {
        // Large files count in kilobytes so the bar's int range holds them.
        const int scale = total > (qint64(1) << 30) ? 1024 : 1;
        pbDownload->setMaximum(int(total / scale));
        pbDownload->setValue(int(received / scale));
        stProgress->setText(UpdateCheck::progressText(received, total));
    });
    connect(updater, &cAutoUpdate::downloadFailed, this, [this](int code) {
        // The window stays so the coach can read what happened.
        stTitle->setText(QStringLiteral("Error ") + QString::number(code) + QStringLiteral(": There was an error"));
    });
    connect(updater, &cAutoUpdate::downloadComplete, this, [this] {
        // The window stays to say where the file went, with a way to it.
        const QString where = QDir::toNativeSeparators(Updater->SaveItem);
        stTitle->setText(QStringLiteral("The update was saved as \"") + where + QStringLiteral("\"."));
        stTitle->setAccessibleName(stTitle->text());
        stTitle->setWordWrap(true);
        btnCancel->setText(QStringLiteral("Close"));
        btnCancel->setAccessibleName(QStringLiteral("Close"));
        btnShowFolder->show();
        btnShowFolder->setFocus();
    });
    connect(btnShowFolder, &QPushButton::clicked, this,
            [this] { platform::files().revealInFileBrowser(Updater->SaveItem); });
    connect(btnCancel, &QPushButton::clicked, this, [this] {
        Updater->cancel();
        close();
    });
}
