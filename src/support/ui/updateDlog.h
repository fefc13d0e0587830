#pragma once

#include <QDialog>

class cAutoUpdate;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

// The update check: "Checking...", then either the offer of a newer
// version or the word that this copy is up to date. The check runs in the
// background; the window answers the coach all the while.
class updateDlog : public QDialog
{
    Q_OBJECT

public:
    explicit updateDlog(QWidget *parent = nullptr);

    cAutoUpdate *updater = nullptr;

private:
    void offered(const QString &version, const QString &description);
    void upToDate(const QString &message);
    void action();

    QLabel *updatetext = nullptr;
    QPlainTextEdit *descriptionFld = nullptr;
    QPushButton *actionBtn = nullptr;
    QPushButton *cancelBtn = nullptr;
};

// The download of a new version, with its progress and a Cancel button.
class wAutoUpdate : public QDialog
{
    Q_OBJECT

public:
    explicit wAutoUpdate(QWidget *parent = nullptr);

    // Follows `updater`'s download; the updater belongs to this window
    // from now on.
    void Associate(cAutoUpdate *updater);

    cAutoUpdate *Updater = nullptr;

private:
    QProgressBar *pbDownload = nullptr;
    QLabel *stTitle = nullptr;
    QLabel *stProgress = nullptr;
    QPushButton *btnCancel = nullptr;     // "Close" once the file is there
    QPushButton *btnShowFolder = nullptr; // shown once the file is there
};
