#pragma once

#include <QAbstractButton>
#include <QImage>

// The round "i" button of a screen: asks for help at the topic `helpDest`
// through support::HelpRequests. It shows pushed 2 pixels right and down
// while pressed. While no help window listens for requests it is disabled.
class myInfoBtn : public QAbstractButton
{
    Q_OBJECT

public:
    explicit myInfoBtn(int helpDest = 0, QWidget *parent = nullptr);

    int helpDest() const { return m_helpDest; }
    void setHelpDest(int topic) { m_helpDest = topic; }

    QImage myPic() const { return m_pic; }

    QSize sizeHint() const override { return {24, 24}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void askForHelp();
    void followHelp();

    int m_helpDest = 0;
    QImage m_pic;
};
