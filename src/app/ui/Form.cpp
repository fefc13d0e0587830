#include "app/ui/Form.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace {

// What assistive tools see of a menu button: a button whose child is its
// menu, so the menu's entries can be read and chosen without opening it.
class MenuButtonAccessible : public QAccessibleWidget
{
public:
    explicit MenuButtonAccessible(QToolButton *button) : QAccessibleWidget(button, QAccessible::ButtonMenu) {}

    QToolButton *button() const { return static_cast<QToolButton *>(widget()); }
    int childCount() const override { return button()->menu() ? 1 : 0; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 && button()->menu() ? QAccessible::queryAccessibleInterface(button()->menu()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && button()->menu() && child->object() == button()->menu() ? 0 : -1;
    }
    QStringList actionNames() const override { return {showMenuAction()}; }
    void doAction(const QString &action) override
    {
        // Opening the menu runs its own loop: not inside the tool's call.
        if (action == showMenuAction() || action == pressAction())
            QMetaObject::invokeMethod(button(), &QToolButton::showMenu, Qt::QueuedConnection);
    }
};

// A value label is read by its value; while it shows none, by what it is.
class ValueLabelAccessible : public QAccessibleWidget
{
public:
    explicit ValueLabelAccessible(QLabel *label) : QAccessibleWidget(label, QAccessible::StaticText) {}

    QString text(QAccessible::Text t) const override
    {
        const auto *label = static_cast<const QLabel *>(widget());
        if (t == QAccessible::Name)
            return label->text().isEmpty() ? label->accessibleDescription() : label->text();
        if (t == QAccessible::Value)
            return label->text();
        return QAccessibleWidget::text(t);
    }
};

const char *const kMenuButton = "form_menuButton";
const char *const kValueLabel = "form_valueLabel";

QAccessibleInterface *formAccessible(const QString &, QObject *object)
{
    if (object && object->property(kMenuButton).toBool())
        if (auto *button = qobject_cast<QToolButton *>(object))
            return new MenuButtonAccessible(button);
    if (object && object->property(kValueLabel).toBool())
        if (auto *label = qobject_cast<QLabel *>(object))
            return new ValueLabelAccessible(label);
    return nullptr;
}

void installAccessibleFactory()
{
    static const bool installed = (QAccessible::installFactory(formAccessible), true);
    Q_UNUSED(installed);
}

} // namespace

namespace form {

QString spokenCaption(const QString &caption)
{
    QString text;
    text.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        // "&&" is a literal ampersand; a lone "&" marks the mnemonic.
        if (caption.at(i) == u'&') {
            if (i + 1 < caption.size() && caption.at(i + 1) == u'&')
                text += u'&', ++i;
            continue;
        }
        text += caption.at(i);
    }
    text = text.trimmed();
    while (text.endsWith(u':') || text.endsWith(u'.') || text.endsWith(QChar(0x2026)))
        text.chop(1);
    return text.trimmed();
}

QLabel *buddyLabel(QWidget *field, const QString &caption, QWidget *parent)
{
    auto *label = new QLabel(caption, parent ? parent : field->parentWidget());
    label->setBuddy(field);
    if (field->accessibleName().isEmpty())
        named(field, field->objectName(), spokenCaption(caption));
    return label;
}

QPushButton *button(QWidget *parent, const QString &objectName, const QString &caption, const QString &accessibleName)
{
    auto *b = new QPushButton(caption, parent);
    b->setObjectName(objectName);
    // Without a name of its own the button is read by its caption, which
    // follows the caption when the screen changes it ("Add Team", "Edit Team").
    if (!accessibleName.isEmpty())
        b->setAccessibleName(accessibleName);
    return b;
}

QLineEdit *lineEdit(QWidget *parent, const QString &objectName, const QString &accessibleName)
{
    return make<QLineEdit>(parent, objectName, accessibleName);
}

QLabel *valueLabel(QWidget *parent, const QString &objectName, const QString &description)
{
    installAccessibleFactory();
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setProperty(kValueLabel, true);
    // No fixed accessible name: the label is read by its text, which is
    // the value the coach wants to hear.
    label->setAccessibleDescription(description);
    label->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    return label;
}

QToolButton *printButton(QWidget *parent, const QStringList &rows, const std::function<void(int)> &print,
                         const QString &objectName)
{
    installAccessibleFactory();
    auto *button = new QToolButton(parent);
    button->setProperty(kMenuButton, true);
    named(button, objectName, QStringLiteral("Print"));
    button->setText(QStringLiteral("Print"));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(button);
    menu->setObjectName(QStringLiteral("printMenu"));
    menu->setAccessibleName(QStringLiteral("Print"));
    for (int kind = 0; kind < rows.size(); ++kind)
        QObject::connect(menu->addAction(rows[kind]), &QAction::triggered, button, [print, kind] { print(kind); });
    button->setMenu(menu);
    return button;
}

QHBoxLayout *row(std::initializer_list<QWidget *> widgets)
{
    auto *layout = new QHBoxLayout;
    for (QWidget *w : widgets) {
        if (w)
            layout->addWidget(w);
        else
            layout->addStretch(1);
    }
    return layout;
}

QComboBox *comboBox(QWidget *parent, const QString &objectName, const QString &accessibleName, ComboKind kind)
{
    auto *box = new QComboBox(parent);
    if (kind == Editable) {
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        // What is typed stays as typed: no completion from the list.
        box->setCompleter(nullptr);
    }
    return named(box, objectName, accessibleName);
}

Rows::Rows(QWidget *parent, QFormLayout *layout) : m_parent(parent), m_layout(layout)
{
    m_layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

QLineEdit *Rows::lineEdit(const QString &objectName, const QString &caption)
{
    return add(objectName, caption, new QLineEdit(m_parent));
}

QComboBox *Rows::comboBox(const QString &objectName, const QString &caption, ComboKind kind)
{
    QComboBox *box = form::comboBox(m_parent, objectName, spokenCaption(caption), kind);
    addRow(caption, box);
    return box;
}

void Rows::addRow(const QString &caption, QWidget *field)
{
    m_layout->addRow(buddyLabel(field, caption, m_parent), field);
}

void Rows::addRow(const QString &caption, QLayout *fields, QWidget *buddy)
{
    m_layout->addRow(buddyLabel(buddy, caption, m_parent), fields);
}

} // namespace form
