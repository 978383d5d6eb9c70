#include "texttools/nameTable.h"

#include <QStringList>

namespace
{
/// Small letters for the large ones of ASCII, which alone names of markup know.
constexpr char16_t small(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

bool isSame(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i)
        if (small(a[i].unicode()) != small(b[i].unicode()))
            return false;
    return true;
}
} // namespace

NameTable NameTable::of(const char *names)
{
    NameTable table;
    for (const QString &name : QString::fromLatin1(names).split(u' '))
        table.add(name);
    return table;
}

size_t NameTable::hashOf(QStringView name)
{
    size_t hash = 14695981039346656037U;
    for (const QChar c : name)
        hash = (hash ^ small(c.unicode())) * 1099511628211U;
    return hash ^ (hash >> 29U);
}

int NameTable::find(QStringView name) const
{
    for (size_t at = hashOf(name);; ++at) {
        const int number = m_slots[at & (m_slots.size() - 1)];
        if (number == 0 || isSame(this->name(number), name))
            return number;
    }
}

int NameTable::add(const QString &name)
{
    if (const int number = find(name))
        return number;
    m_names.push_back(name);
    if (m_names.size() * 2 > m_slots.size()) {
        m_slots.assign(m_slots.size() * 2, 0);
        for (int number = 1; number < count(); ++number)
            insert(number);
    }
    insert(count());
    return count();
}

void NameTable::insert(int number)
{
    size_t at = hashOf(name(number));
    while (m_slots[at & (m_slots.size() - 1)] != 0)
        ++at;
    m_slots[at & (m_slots.size() - 1)] = number;
}
