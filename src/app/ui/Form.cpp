#include "app/ui/Form.h"

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

QPushButton *button(QWidget *parent, const QString &objectName, const QString &caption,
                    const QString &accessibleName)
{
    auto *b = new QPushButton(caption, parent);
    return named(b, objectName, accessibleName.isEmpty() ? spokenCaption(caption) : accessibleName);
}

QLabel *valueLabel(QWidget *parent, const QString &objectName, const QString &description)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    // No fixed accessible name: a QLabel without one is read by its text,
    // which is the value the coach wants to hear.
    label->setAccessibleDescription(description);
    label->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    return label;
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
