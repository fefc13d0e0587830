#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

#include <functional>
#include <type_traits>
#include <utility>

class QToolButton;

// Helpers that make a control the way every screen wants it: with its
// objectName (the name the program's design gives it), an accessible name
// for screen readers, and for fields a buddy label whose mnemonic (&)
// focuses the field. One call per control keeps the screens' constructors
// short and alike.
namespace form {

// The caption as a screen reader should say it: no mnemonic "&", no
// trailing colon or ellipsis.
QString spokenCaption(const QString &caption);

// Names a control: objectName and accessible name. An editable combo box
// gives its typing field the same accessible name.
template<class W>
W *named(W *widget, const QString &objectName, const QString &accessibleName)
{
    widget->setObjectName(objectName);
    widget->setAccessibleName(accessibleName);
    if constexpr (std::is_base_of_v<QComboBox, W>) {
        if (widget->lineEdit())
            widget->lineEdit()->setAccessibleName(accessibleName);
    }
    return widget;
}

// Any control made and named in one call; `args` go to its constructor
// before the parent:
//
//     activeCheck = form::make<qlmCheckBox>(central, "activeCheck", "Active", u"Active"_s);
//     PlusMinusPlayers = form::make<PlusMinusContainer>(central, "PlusMinusPlayers", "Players",
//                                                       u"Add player"_s, u"Delete player"_s);
template<class W, class... Args>
W *make(QWidget *parent, const QString &objectName, const QString &accessibleName, Args &&...args)
{
    return named(new W(std::forward<Args>(args)..., parent), objectName, accessibleName);
}

QLineEdit *lineEdit(QWidget *parent, const QString &objectName, const QString &accessibleName);

// A label for `field`, with `caption` ("&Team Name:") as its text and the
// field as its buddy. The field takes the spoken caption as its accessible
// name unless it has one.
QLabel *buddyLabel(QWidget *field, const QString &caption, QWidget *parent = nullptr);

// A push button named `objectName`; its caption is its accessible name
// unless one is given (icon-only or terse buttons).
QPushButton *button(QWidget *parent, const QString &objectName, const QString &caption,
                    const QString &accessibleName = {});

// A label that shows a value (a team name, an age). Screen readers read
// its text; `description` says what the value is.
QLabel *valueLabel(QWidget *parent, const QString &objectName, const QString &description);

// The "Print" button beside a list: a menu button whose entries are `rows`;
// choosing row i calls print(i). Assistive tools see the menu and its
// entries as the button's children and can choose an entry there.
QToolButton *printButton(QWidget *parent, const QStringList &rows, const std::function<void(int)> &print,
                         const QString &objectName = QStringLiteral("printBtn"));

// A horizontal row of controls; a nullptr stands for a stretch.
QHBoxLayout *row(std::initializer_list<QWidget *> widgets);

// Fills one QFormLayout, a caption and a control per row.
//
//     form::Rows rows(central, formLayout);
//     teamFld = rows.lineEdit("teamFld", "&Team Name:");
//     LeagueFld = rows.comboBox("LeagueFld", "&League:", form::Editable);
//     phoneFld = rows.add("phoneFld", "&Phone:", new MaskedPhoneField(central));
enum ComboKind { Fixed, Editable };

class Rows
{
public:
    Rows(QWidget *parent, QFormLayout *layout);

    QFormLayout *layout() const { return m_layout; }

    QLineEdit *lineEdit(const QString &objectName, const QString &caption);
    // Editable boxes keep what is typed as typed: no completion, no
    // insertion into the list.
    QComboBox *comboBox(const QString &objectName, const QString &caption, ComboKind kind = Fixed);

    // Any control: named, labelled and added as a row.
    template<class W>
    W *add(const QString &objectName, const QString &caption, W *field)
    {
        named(field, objectName, spokenCaption(caption));
        addRow(caption, field);
        return field;
    }
    // A row holding a layout (two fields side by side); `buddy` takes the
    // caption's mnemonic.
    void addRow(const QString &caption, QLayout *fields, QWidget *buddy);
    void addRow(const QString &caption, QWidget *field);

private:
    QWidget *m_parent;
    QFormLayout *m_layout;
};

// Captioned fields on a QGridLayout: the caption's buddy label in
// `column`, the field right of it across `span` columns.
//
//     form::Grid grid(central, new QGridLayout);
//     grid.add(0, 0, "&First:", FNameFld = form::lineEdit(central, "FNameFld", "First name"));
class Grid
{
public:
    Grid(QWidget *parent, QGridLayout *layout) : m_parent(parent), m_layout(layout) {}
    QGridLayout *layout() const { return m_layout; }

    template<class W>
    W *add(int row, int column, const QString &caption, W *field, int span = 1)
    {
        m_layout->addWidget(buddyLabel(field, caption, m_parent), row, column);
        m_layout->addWidget(field, row, column + 1, 1, span);
        return field;
    }

private:
    QWidget *m_parent;
    QGridLayout *m_layout;
};

// A combo box set up as Rows::comboBox makes it, without a row.
QComboBox *comboBox(QWidget *parent, const QString &objectName, const QString &accessibleName, ComboKind kind = Fixed);

} // namespace form
