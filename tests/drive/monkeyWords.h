#pragma once

#include <QString>
#include <QStringList>
#include <random>

namespace drive
{
/// The choices of a monkey, the same for a seed on every machine.
class MonkeyWords
{
public:
    explicit MonkeyWords(quint32 seed) : m_engine(seed) {}

    int below(int bound) { return bound > 0 ? static_cast<int>(m_engine() % static_cast<unsigned>(bound)) : 0; }
    bool onceIn(int bound) { return below(bound) == 0; }
    QString oneOf(const QStringList &words) { return words.value(below(static_cast<int>(words.size()))); }

    QString text();      ///< what somebody may type, breaks and unusual characters included
    QString fieldText(); ///< what somebody may enter into a field
    QString chord();     ///< for `key`
    QString page();      ///< the path of a page of the site
    QString newFile();   ///< a path to save to

private:
    std::mt19937 m_engine;
};
} // namespace drive
