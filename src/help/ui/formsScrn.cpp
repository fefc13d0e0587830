#include "help/ui/formsScrn.h"

#include "app/globals.h"
#include "app/ui/Form.h"
#include "app/ui/MainMenuBar.h"
#include "platform/Services.h"
#include "reports/ui/qlmListBox.h"
#include "support/ui/myInfoBtn.h"
#include "support/ui/qlmLabel.h"

#include <QHBoxLayout>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

// A picture's size in points, by its own resolution (72 per inch when it
// names none), which is the size it prints at.
QSizeF pointSize(const QImage &picture)
{
    const double dpi = picture.dotsPerMeterX() > 0 ? picture.dotsPerMeterX() * 0.0254 : 72.0;
    return QSizeF(picture.size()) * (72.0 / dpi);
}

// Shows the picture of the chosen form at four fifths of its size.
class FormCanvas : public QWidget
{
public:
    FormCanvas(formsScrn *screen, QWidget *parent) : QWidget(parent), m_screen(screen) {}

    void refresh()
    {
        const QImage &shown = m_screen->picture(m_screen->whichP);
        if (!shown.isNull())
            setFixedSize((pointSize(shown) * 0.8).toSize());
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const QImage &shown = m_screen->picture(m_screen->whichP);
        if (shown.isNull())
            return;
        QPainter p(this);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(rect(), shown);
    }

private:
    formsScrn *m_screen;
};

} // namespace

formsScrn::formsScrn(QWidget *parent) : ScreenBase(ScreenId::formsScrn, QStringLiteral("Forms - Extras"), parent)
{
    auto *central = new QWidget(this);
    auto *outer = new QHBoxLayout(central);
    auto *left = new QVBoxLayout;
    txtprefs = new qlmLabel(QStringLiteral("Forms and Extras"), central);
    txtprefs->setObjectName(QStringLiteral("txtprefs"));
    left->addWidget(txtprefs);
    formsList = form::named(new qlmListBox(central), QStringLiteral("formsList"), QStringLiteral("Forms"));
    formsList->setColumnCount(1);
    formsList->setHeadings({QStringLiteral("Forms")});
    left->addWidget(formsList, 1);
    printBtn = form::button(central, QStringLiteral("printBtn"), QStringLiteral("Print Form"));
    closeBtn = form::button(central, QStringLiteral("closeBtn"), QStringLiteral("Close Screen"));
    helpBtn = form::named(new myInfoBtn(11, central), QStringLiteral("helpBtn"), QStringLiteral("Help"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(helpBtn);
    buttons->addStretch(1);
    buttons->addWidget(closeBtn);
    buttons->addWidget(printBtn);
    left->addLayout(buttons);
    outer->addLayout(left);

    auto *canvas = new FormCanvas(this, central);
    displayCnv = form::named(canvas, QStringLiteral("displayCnv"), QStringLiteral("The chosen form"));
    auto *scroller = form::named(new QScrollArea(central), QStringLiteral("formScroller"),
                                 QStringLiteral("Form picture"));
    scroller->setWidget(displayCnv);
    scroller->setAlignment(Qt::AlignCenter);
    outer->addWidget(scroller, 1);
    setCentralWidget(central);
    resize(900, 640);

    m_pictures.resize(gFormFiles.size());
    m_decoded.resize(gFormFiles.size());
    if (gFormNames.isEmpty()) {
        formsList->addRow({QStringLiteral("tlynForms folder not available")});
        printBtn->setEnabled(false);
    } else {
        for (const QString &name : gFormNames)
            formsList->addRow({name});
    }
    whichP = 0;
    formsList->setSelectedRow(0);
    canvas->refresh();
    connect(formsList, &qlmListBox::rowSelectionChanged, this, [this, canvas] {
        const int row = formsList->selectedRow();
        if (row < 0)
            return;
        whichP = row;
        canvas->refresh();
    });
    connect(printBtn, &QPushButton::clicked, this, &formsScrn::printForm);
    connect(closeBtn, &QPushButton::clicked, this, &QWidget::close);
    menus()->installHandler(QStringLiteral("FilePrint"), [this] {
        printForm();
        return true;
    });
    menus()->installPrinterSetup();
}

const QImage &formsScrn::picture(int which)
{
    static const QImage none;
    if (which < 0 || which >= m_pictures.size())
        return none;
    if (!m_decoded.at(which)) {
        m_decoded[which] = true;
        m_pictures[which] = QImageReader(gFormFiles.at(which)).read();
    }
    return m_pictures.at(which);
}

void formsScrn::printForm()
{
    // Nothing to print while no form was found, even from the menu.
    const QImage &picture = this->picture(whichP);
    if (picture.isNull())
        return;
    // A fresh set-up each time, turned to fit the picture: a page is 612
    // points wide standing up.
    platform::PrinterSetup setup;
    const QSizeF size = pointSize(picture);
    setup.setLandscape(size.width() > 612);
    std::unique_ptr<platform::PrintJob> job = platform::printing().printDialog(setup, windowTitle());
    if (!job)
        return;
    for (int copy = 0; copy < job->copies(); ++copy) {
        if (copy > 0)
            job->newPage();
        job->painter().drawImage(QRectF(QPointF(0, 0), size), picture);
    }
    job->finish();
}

void formsScrn::keyPressEvent(QKeyEvent *event)
{
    if (gIsEnterKey(event->text())) {
        close();
        return;
    }
    ScreenBase::keyPressEvent(event);
}
