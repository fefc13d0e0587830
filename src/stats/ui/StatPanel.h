#pragma once

#include "stats/GameStats.h"

#include <QFrame>
#include <QList>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// What the three statistics panels of the game screen share: number fields
// with the panels' key rule ("+" and "-" step, digits, "." Tab and
// Backspace pass, anything else beeps; Escape saves and closes), the row of
// one player in one game read on setValues and written as each changed
// field is left (and on close), and the close button.
class StatPanel : public QFrame
{
    Q_OBJECT

public:
    StatPanel(stats::Panel kind, const QString &objectName, const QString &title, QWidget *parent = nullptr);

    // Shows the player's row of this game, or zeros.
    void setValues(const QString &game, const QString &player, const QString &team);
    // Writes the row when something was typed. False when the panel
    // refuses to let go (the pitching panel's bad innings text).
    virtual bool saveData();
    // The stored string of the fields.
    QString gatherData() const;
    bool dataDirty() const { return m_dirty; }
    QString whichPlayer() const { return m_player; }

    // The close path of the click and of Escape: save, hide, wasClosed.
    void closePanel();

Q_SIGNALS:
    void wasClosed();
    // A row was written.
    void saved();

protected:
    int fieldCount() const { return int(m_fields.size()); }
    QLineEdit *dataFld(int i) const { return m_fields.value(i); }
    QLabel *fieldLabel(int i) const { return m_labels.value(i); }
    // Reads the row into the fields (and any controls of its own); false
    // when the player has none yet.
    virtual bool loadRow();
    virtual void clearRow();
    virtual bool writeRow();
    QLineEdit *addField(int index, const QString &caption, int gridRow, int gridCol);
    void watchField(QLineEdit *field, bool numberRule);
    void markDirty() { m_dirty = true; }
    // Writes the row when something changed and the fields make a row
    // that may be stored: each field as it is left, each button as it is
    // clicked, one transaction each.
    void writeNow();
    void writeChange();
    // Whether the fields may be written as they stand (the pitching
    // panel's innings text must read).
    virtual bool rowIsGood() const { return true; }
    bool eventFilter(QObject *watched, QEvent *event) override;

    stats::Panel m_kind;
    QString m_game;
    QString m_player;
    QString m_team;
    bool m_dirty = false;
    QList<QLineEdit *> m_fields;
    QList<QLabel *> m_labels;
    QLabel *Label1 = nullptr;
    QLabel *playerIDFld = nullptr;
    QPushButton *closeBtn = nullptr;
    QGridLayout *m_grid = nullptr;
};
