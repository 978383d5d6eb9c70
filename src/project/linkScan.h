#pragma once

#include <QString>
#include <optional>

/// Finds the links of a page, one after the other, so that a long page can be left in between.
///
/// A link is an href in double quotes, a blank right in front of it, somewhere behind "<a ", both in any case. Its
/// target is taken as it is written. Links without quotes, in single quotes or behind a line break are not seen, and
/// neither is any other element; an href of another element that follows an "<a " without one is.
class LinkScan
{
public:
    explicit LinkScan(const QString &page) : m_page(page) {}

    /// The next target that is not empty; nothing at the end of the page.
    std::optional<QString> next();
    /// How far the scan has come, in characters from the page's start.
    qsizetype position() const { return m_from; }

private:
    std::optional<QStringView> target();

    QString m_page;
    qsizetype m_from = 0;
};
