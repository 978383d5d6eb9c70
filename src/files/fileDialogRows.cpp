#include "files/fileDialogRows.h"

#include <QStringList>

#include <array>
#include <span>

namespace
{
template <class Kind>
struct DialogRow {
    const char *description;
    const char *patterns;
    Kind kind;
};

// clang-format off
constexpr std::array openRows{
    DialogRow<OpenAs>{"All Files (*.*)", "*.*", OpenAs::Text},
    DialogRow<OpenAs>{"All Webpages (*.html; *.htm; *.asp; *.shtml)", "*.html;*.htm;*.asp;*.shtml", OpenAs::Text},
    DialogRow<OpenAs>{"HTML Files (*.html; *.htm)", "*.html;*.htm", OpenAs::Text},
    DialogRow<OpenAs>{"Unicode HTML Files (*.html; *.htm)", "*.html;*.htm", OpenAs::UnicodeText},
    DialogRow<OpenAs>{"Tagwrighter Template (*.tpl)", "*.tpl", OpenAs::Template},
    DialogRow<OpenAs>{"Tagwrighter Combined Template (*.ctp)", "*.ctp", OpenAs::CombinedTemplate},
    DialogRow<OpenAs>{"Cascading Style Sheets (*.css)", "*.css", OpenAs::Text},
    DialogRow<OpenAs>{"Text Files (*.txt)", "*.txt", OpenAs::Text},
    DialogRow<OpenAs>{"Unicode Text Files (*.txt)", "*.txt", OpenAs::UnicodeText},
    DialogRow<OpenAs>{"JavaScript Files (*.js)", "*.js", OpenAs::Text},
    DialogRow<OpenAs>{"Tagwrighter Site Project (*.tsp)", "*.tsp", OpenAs::SiteProject},
};

constexpr std::array saveRows{
    DialogRow<SaveAs>{"All Files (*.*)", "*.*", SaveAs::Text},
    DialogRow<SaveAs>{"HTML Files (*.html; *.htm)", "*.html;*.htm", SaveAs::Text},
    DialogRow<SaveAs>{"Unicode HTML Files (*.html; *.htm)", "*.html;*.htm", SaveAs::UnicodeText},
    DialogRow<SaveAs>{"Tagwrighter Template (*.tpl)", "*.tpl", SaveAs::Text},
    DialogRow<SaveAs>{"Tagwrighter Combined Template (*.ctp)", "*.ctp", SaveAs::CombinedTemplate},
    DialogRow<SaveAs>{"Cascading Style Sheets (*.css)", "*.css", SaveAs::Text},
    DialogRow<SaveAs>{"Text Files (*.txt)", "*.txt", SaveAs::Text},
    DialogRow<SaveAs>{"Unicode Text Files (*.txt)", "*.txt", SaveAs::UnicodeText},
    DialogRow<SaveAs>{"Text Files - No Tags (*.txt)", "*.txt", SaveAs::TextWithoutTags},
    DialogRow<SaveAs>{"Active Server Pages (*.asp)", "*.asp", SaveAs::Text},
    DialogRow<SaveAs>{"JavaScript Files (*.js)", "*.js", SaveAs::Text},
};
// clang-format on

template <class Kind>
QString filterOf(std::span<const DialogRow<Kind>> rows)
{
    QStringList pieces;
    for (const DialogRow<Kind> &row : rows)
        pieces << QString::fromLatin1(row.description) << QString::fromLatin1(row.patterns);
    return pieces.join(u'|');
}

template <class Kind>
Kind kindOf(std::span<const DialogRow<Kind>> rows, int filterIndex)
{
    if (filterIndex < 1 || filterIndex > static_cast<int>(rows.size()))
        return Kind::Text;
    return rows[static_cast<std::size_t>(filterIndex - 1)].kind;
}
} // namespace

QString openFilter()
{
    return filterOf<OpenAs>(openRows);
}

QString saveFilter()
{
    return filterOf<SaveAs>(saveRows);
}

OpenAs openAs(int filterIndex)
{
    return kindOf<OpenAs>(openRows, filterIndex);
}

SaveAs saveAs(int filterIndex)
{
    return kindOf<SaveAs>(saveRows, filterIndex);
}
