#pragma once

#include "app/ui/ScreenBase.h"

class QPlainTextEdit;
class QPushButton;

// The box score of one game, from the schedule: shown in a fixed-pitch
// face, printed on one page, saved as PDF or plain text, and its rows
// exported for a statistics site.
class boxScoreScrn : public ScreenBase
{
    Q_OBJECT

public:
    explicit boxScoreScrn(const QString &schedID, QWidget *parent = nullptr);

    void printBox();
    void savePdf();
    void saveText();
    void exportRows();

private:
    QPlainTextEdit *boxText = nullptr;
    QPushButton *printBtn = nullptr;
    QPushButton *pdfBtn = nullptr;
    QPushButton *textBtn = nullptr;
    QPushButton *rowsBtn = nullptr;
    QPushButton *closeBtn = nullptr;

    // The chosen path with `suffix` added when it has none; empty on cancel.
    QString askPath(const QString &title, const QString &suffix, const QString &filter) const;
    bool writeFile(const QString &path, const QByteArray &bytes);

    QString m_text;
    QString m_rows;
    QString m_title;
};
