#pragma once

#include <QObject>
#include <QSet>

class QCheckBox;
class QComboBox;
class SettingsStore;
namespace ui
{
class Node;
}

/// The part of a form that holds the choice between the classic way to edit and today's, and a tick for each rule. A
/// rule that nobody has set by itself goes with the choice.
class HabitChoice final : public QObject
{
    Q_OBJECT
public:
    /// Lives as long as `owner`, the window that its controls are put into.
    HabitChoice(SettingsStore &store, QObject *owner);

    ui::Node controls();
    void show();
    void store();

private:
    void cboEditingHabits_Click();
    bool today() const;

    SettingsStore &m_store;
    QComboBox *cboEditingHabits = nullptr;
    QList<QCheckBox *> m_ticks; ///< one for each of habitRules()
    QSet<QCheckBox *> m_own;    ///< those that do not go with the choice
};
