#include "shell/habitChoice.h"

#include "services/habits.h"
#include "services/settings.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QComboBox>

namespace
{
enum Row { Classic, Today };

QString tickName(const HabitRule &rule)
{
    return QStringLiteral("chk") + QLatin1String(rule.key->name);
}
} // namespace

HabitChoice::HabitChoice(SettingsStore &store, QObject *owner) : QObject(owner), m_store(store) {}

ui::Node HabitChoice::controls()
{
    cboEditingHabits = ui::dropList(QStringLiteral("cboEditingHabits"),
                                    {QStringLiteral("The classic way"), QStringLiteral("As today's editors do")},
                                    [this] { cboEditingHabits_Click(); });
    QList<ui::Node> pieces{ui::rows({ui::row(QStringLiteral("&Way to edit:"), cboEditingHabits)})};
    for (const HabitRule &rule : habitRules()) {
        QCheckBox *tick = ui::check(tickName(rule), QLatin1String(rule.caption));
        connect(tick, &QCheckBox::clicked, this, [this, tick] { m_own.insert(tick); });
        m_ticks.append(tick);
        pieces.append(tick);
    }
    return ui::group(QStringLiteral("Habits"), ui::column(pieces));
}

void HabitChoice::show()
{
    const Habits habits = readHabits(m_store);
    cboEditingHabits->setCurrentIndex(editsByToday(m_store) ? Today : Classic);
    for (int i = 0; i < m_ticks.size(); ++i) {
        const HabitRule &rule = habitRules()[i];
        m_ticks[i]->setChecked(habits.*rule.rule);
        if (!settings::readStored(m_store, *rule.key).isEmpty())
            m_own.insert(m_ticks[i]);
    }
}

bool HabitChoice::today() const
{
    return cboEditingHabits->currentIndex() == Today;
}

void HabitChoice::cboEditingHabits_Click()
{
    for (QCheckBox *tick : std::as_const(m_ticks))
        if (!m_own.contains(tick))
            tick->setChecked(today());
}

/// A rule gets a value of its own only where it says something else than what is read without: so it goes with the next
/// choice. A choice that was never made is left open as long as nothing has changed.
void HabitChoice::store()
{
    if (today() != editsByToday(m_store))
        chooseHabits(m_store, today());
    const Habits read = readHabits(m_store);
    for (int i = 0; i < m_ticks.size(); ++i) {
        const HabitRule &rule = habitRules()[i];
        if (m_ticks[i]->isChecked() != read.*rule.rule)
            settings::writeBoolean(m_store, *rule.key, m_ticks[i]->isChecked());
    }
}
