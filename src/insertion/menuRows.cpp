#include "insertion/menuRows.h"

QString menuItemMark()
{
    return QStringLiteral("\u00B7\u00B7\u00B7");
}

QString shownText(const MenuRow &row)
{
    return row.item ? menuItemMark() + row.text : row.text;
}

void MenuRows::select(int row)
{
    if (row >= 0 && row < m_rows.size())
        m_selected = row;
}

void MenuRows::setText(const QString &text)
{
    m_rows[m_selected].text = text;
}

void MenuRows::setLink(const QString &link)
{
    m_rows[m_selected].link = link;
}

void MenuRows::makeCaption()
{
    m_rows[m_selected].item = false;
}

MenuRows::Refusal MenuRows::makeItem()
{
    if (m_selected == 0)
        return QStringLiteral("The first item in the menu list must be a menu caption.");
    m_rows[m_selected].item = true;
    return std::nullopt;
}

/// A row is blank that shows nothing but the mark of its kind; its link does not count.
bool MenuRows::selectsBlankEnd()
{
    if (!m_rows.last().text.isEmpty())
        return false;
    m_selected = static_cast<int>(m_rows.size()) - 1;
    return true;
}

void MenuRows::addNew()
{
    if (!selectsBlankEnd()) {
        m_rows.append(MenuRow());
        m_selected = static_cast<int>(m_rows.size()) - 1;
    }
    m_rows[m_selected].item = m_selected > 0 && m_rows[m_selected - 1].item;
}

void MenuRows::insertAbove()
{
    if (!selectsBlankEnd())
        m_rows.insert(m_selected, MenuRow());
}

MenuRows::Refusal MenuRows::remove()
{
    if (m_selected == 0 && isItem(1))
        return QStringLiteral(
            "You are about to delete a menu caption. The item below it is a menu item. You must convert this menu "
            "item to a menu caption before you can continue.");
    m_rows.removeAt(m_selected);
    if (m_rows.isEmpty())
        m_rows.append(MenuRow());
    m_selected = static_cast<int>(m_rows.size()) - 1;
    return std::nullopt;
}

MenuRows::Refusal MenuRows::moveUp()
{
    if (m_selected == 0)
        return std::nullopt;
    if (m_selected == 1 && row().item)
        return QStringLiteral("You are about to move a menu item to the top of the list. The first menu item must be "
                              "a menu caption.");
    swapWith(m_selected - 1);
    return std::nullopt;
}

MenuRows::Refusal MenuRows::moveDown()
{
    if (m_selected == m_rows.size() - 1)
        return std::nullopt;
    if (m_selected == 0 && isItem(1))
        return QStringLiteral(
            "You are about to move the top menu caption down in the list. This action will expose the menu item below "
            "it. You must first change the menu item to a menu caption before you continue.");
    swapWith(m_selected + 1);
    return std::nullopt;
}

void MenuRows::swapWith(int other)
{
    m_rows.swapItemsAt(m_selected, other);
    m_selected = other;
}
