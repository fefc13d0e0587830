#pragma once

#include "app/ui/ScreenBase.h"

#include <QWidget>

class HTMLField;
class QLabel;
class QListWidget;
class QPushButton;
class QTextBrowser;

// The help index: "INDEX" over the list of topics, headings in bold. A
// click on a page's row raises linkClicked with its file name.
class indexCtnr : public QWidget
{
    Q_OBJECT

public:
    explicit indexCtnr(QWidget *parent = nullptr);

Q_SIGNALS:
    void linkClicked(const QString &target);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QListWidget *indexLB = nullptr;
};

// The help window: the index on the left, one page on the right. Opened
// for a topic it shows that page alone; opened with 0 it shows the index
// and no page. Several may stand open at once.
class helpScrn2 : public ScreenBase
{
    Q_OBJECT

public:
    explicit helpScrn2(int topic = 0, QWidget *parent = nullptr);

    void getHelpText(const QString &fileName);
    void setVisibles();
    void printMe();
    // The File menu's Print: the page on show, read again as plain text.
    void printPage();

    QString curDocName;
    bool indexVisible = false;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    indexCtnr *myIndexCtnr = nullptr;
    QTextBrowser *myHTML = nullptr;
    HTMLField *stylFld = nullptr;
    QPushButton *hideBtn = nullptr;
    QPushButton *closeBtn = nullptr;
    QLabel *noticeFld = nullptr;
};
