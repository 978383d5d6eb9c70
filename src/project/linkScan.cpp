#include "project/linkScan.h"

namespace
{
constexpr QStringView anchor = u"<a ";
constexpr QStringView href = u" href=\"";
} // namespace

std::optional<QStringView> LinkScan::target()
{
    const QStringView page(m_page);
    if (m_from >= page.size() - 1) // a link does not begin with the page's last character
        return std::nullopt;
    const qsizetype element = page.indexOf(anchor, m_from, Qt::CaseInsensitive);
    const qsizetype attribute = element < 0 ? -1 : page.indexOf(href, element, Qt::CaseInsensitive);
    const qsizetype start = attribute + href.size();
    const qsizetype end = attribute < 0 ? -1 : page.indexOf(u'"', start);
    if (end < 0)
        return std::nullopt;
    m_from = attribute + 1;
    return page.sliced(start, end - start);
}

std::optional<QString> LinkScan::next()
{
    while (const std::optional<QStringView> found = target())
        if (!found->isEmpty())
            return found->toString();
    m_from = m_page.size();
    return std::nullopt;
}
