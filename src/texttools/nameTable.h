#pragma once

#include <QString>
#include <QStringView>
#include <vector>

/// Names of markup and their numbers, found without regard to case and without a copy of what is looked for.
class NameTable
{
public:
    /// A table of these names, which are parted by blanks.
    static NameTable of(const char *names);
    /// The number of a name, which it is given now if it has none: from 1, in the order of adding.
    int add(const QString &name);
    /// 0 for a name that is not here.
    int find(QStringView name) const;
    const QString &name(int number) const { return m_names[static_cast<size_t>(number - 1)]; }
    int count() const { return static_cast<int>(m_names.size()); }

private:
    static size_t hashOf(QStringView name);
    void insert(int number);

    std::vector<QString> m_names;
    std::vector<int> m_slots = std::vector<int>(64, 0); ///< a power of two of them, never more than half in use
};
