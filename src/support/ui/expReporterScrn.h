#pragma once

#include <QDialog>

#include <exception>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The report of an error that no code caught: what went wrong, where, in
// which version and on which day, for the coach to mail to the maker, to
// go on from, or to quit on. The coach may add to the text before it goes.
class expReporterScrn : public QDialog
{
    Q_OBJECT

public:
    // `text` is "Error: <kind>" and the readable stack, a line each.
    explicit expReporterScrn(const QString &text, QWidget *parent = nullptr);

    // Shows the report of `error` modally; ends the program when the coach
    // chooses to quit. The program's handler of errors no code caught.
    static void showFor(const std::exception_ptr &error);
    // The whole report for an error: its kind and its stack's readable lines.
    static QString reportText(const QString &kind, const QStringList &stackLines);
    // The mail that "Report..." sends: to the maker, the version and
    // " error" as the subject, the text as the body.
    static QUrl reportMail(const QString &text);

Q_SIGNALS:
    // The coach chose to end the program (Quit App or the Enter key).
    void quitRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPlainTextEdit *errFld = nullptr;
    QLabel *errVersTxt = nullptr;
    QPushButton *reportBtn = nullptr;
    QPushButton *ignoreBtn = nullptr;
    QPushButton *quitBtn = nullptr;
};
