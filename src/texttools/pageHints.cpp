#include "texttools/pageHints.h"

#include "texttools/pageValues.h"

namespace
{
bool isNamed(QStringView name, const char *other)
{
    return name.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
}

/// The kinds of links that are in use; the list is open.
bool isKnownLinkKind(QStringView word)
{
    static const NameTable names = NameTable::of(
        "alternate author bookmark canonical compression-dictionary dns-prefetch expect external help icon "
        "license manifest me modulepreload next nofollow noopener noreferrer opener pingback preconnect "
        "prefetch preload prerender prev privacy-policy search shortcut stylesheet tag terms-of-service ugc "
        "sponsored mask-icon apple-touch-icon apple-touch-icon-precomposed apple-touch-startup-image amphtml "
        "home start contents index glossary copyright chapter section subsection appendix up first last top "
        "made toc webmention hub self edituri wlwmanifest shortlink profile schema.dc schema.dcterms "
        "image_src archives");
    return names.find(word) > 0;
}
/// The names of what pages tell of themselves; the list is open, and names with a mark in them are those of some
/// service.
bool isKnownMetaName(QStringView word)
{
    static const NameTable names = NameTable::of(
        "abstract application-name author bingbot category classification color-scheme copyright coverage creator "
        "date description distribution format-detection formatter generator geo googlebot handheldfriendly icbm "
        "identifier-url keywords language mobileoptimized mobile-web-app-capable owner pinterest progid publisher "
        "rating referrer reply-to resource-type revised revisit-after robots slurp subject summary "
        "supported-color-schemes "
        "theme-color title topic url verify-v1 version viewport");
    return names.find(word) > 0 || word.contains(u':') || word.contains(u'.') || word.contains(u'-') ||
           word.contains(u'_');
}
} // namespace

void PageHints::startTag(const html::Token &token, const PageTree::Opened &opened, const PageAttributes &attributes)
{
    const QStringView name = nameOf(token);
    if (opened.tag == PageTag::Html) {
        const auto language = attributes.value(QLatin1String("lang"));
        if ((!language || language->isEmpty()) && !attributes.has(QLatin1String("xml:lang")))
            m_problems.hint("no-language", token.range, QStringLiteral("The page does not say what language it is in."),
                            QStringLiteral("<html lang=\"en\">"));
    }
    if (opened.tag == PageTag::Heading && !opened.foreign)
        checkHeading(token);
    if (opened.tag == PageTag::A && !opened.foreign && attributes.has(QLatin1String("href"))) {
        m_state.link = token.range;
        m_state.linkFilled = attributes.has(QLatin1String("aria-label")) ||
                             attributes.has(QLatin1String("aria-labelledby")) || attributes.has(QLatin1String("title"));
        m_state.pictureInLink = false;
    } else if (isNamed(name, "img")) {
        const auto text = attributes.value(QLatin1String("alt"));
        m_state.linkFilled |= text && !text->isEmpty();
        m_state.pictureInLink = true;
    } else if (opened.foreign || opened.unknown || opened.element == 0 || opened.tag == PageTag::Svg ||
               opened.tag == PageTag::Math || opened.tag == PageTag::Applet || opened.tag == PageTag::RawText ||
               opened.tag == PageTag::Input || opened.tag == PageTag::Button || opened.tag == PageTag::Select ||
               opened.tag == PageTag::Textarea || isNamed(name, "video") || isNamed(name, "audio") ||
               isNamed(name, "canvas")) {
        m_state.linkFilled = true; // nobody can see from here what it shows
    }
    checkWords(attributes, token, opened);
    if (!opened.foreign && isNamed(name, "iframe") && opened.judged)
        checkFrame(token, attributes);
    if (const auto told = attributes.value(QLatin1String("name")); told && !opened.foreign && isNamed(name, "meta") &&
                                                                   !told->isEmpty() && !isKnownMetaName(*told) &&
                                                                   m_problems.wants("meta-name"))
        m_problems.hint("meta-name", {told->data() - m_text.data(), told->size()},
                        QStringLiteral("\"%1\" is a name that few know.").arg(told->toString()),
                        QStringLiteral("description, author, viewport and others."));
}

void PageHints::checkFrame(const html::Token &token, const PageAttributes &attributes)
{
    const bool named = attributes.has(QLatin1String("title")) || attributes.has(QLatin1String("aria-label")) ||
                       attributes.has(QLatin1String("aria-labelledby")) ||
                       attributes.has(QLatin1String("aria-hidden")) || attributes.has(QLatin1String("hidden"));
    if (!named && m_problems.wants("frame-title"))
        m_problems.hint("frame-title", token.range,
                        QStringLiteral("Who does not see this frame is not told what it shows."),
                        QStringLiteral("A title that tells it."));
}

void PageHints::endTag(const html::Token &token)
{
    if (m_state.link.length == 0 || !isNamed(nameOf(token), "a"))
        return;
    if (!m_state.linkFilled && m_problems.wants("empty-link"))
        m_problems.hint("empty-link", m_state.link,
                        m_state.pictureInLink ? QStringLiteral("A picture without a text is all that this link holds.")
                                              : QStringLiteral("This link holds nothing that one could read or click."),
                        m_state.pictureInLink ? QStringLiteral("An alt that tells where it leads.")
                                              : QStringLiteral("A text that tells where it leads."));
    m_state.link = {};
}

void PageHints::checkHeading(const html::Token &token)
{
    const int level = nameOf(token)[1].digitValue();
    if (m_state.heading > 0 && level > m_state.heading + 1 && m_problems.wants("heading-level"))
        m_problems.hint("heading-level", token.range,
                        QStringLiteral("<h%1> follows <h%2>.").arg(level).arg(m_state.heading),
                        QStringLiteral("<h%1>").arg(m_state.heading + 1));
    m_state.heading = level;
}

void PageHints::checkWords(const PageAttributes &attributes, const html::Token &token, const PageTree::Opened &opened)
{
    const auto kinds = attributes.value(QLatin1String("rel"));
    if (!kinds || opened.element == 0)
        return;
    for (const QStringView word : wordsOfValue(*kinds))
        if (!isKnownLinkKind(word) && !word.contains(u':') && m_problems.wants("link-kind"))
            m_problems.hint("link-kind", {word.data() - m_text.data(), word.size()},
                            QStringLiteral("\"%1\" is a kind of link that few know.").arg(word.toString()),
                            nameOf(token).size() == 1 ? QString()
                                                      : QStringLiteral("stylesheet, icon, alternate and others."));
}
