#include "texttools/pageCheck.h"

#include "common/pageCharset.h"
#include "texttools/pageAttributes.h"
#include "texttools/pageFaults.h"
#include "texttools/pageFiles.h"
#include "texttools/pageHints.h"
#include "texttools/pageProblems.h"
#include "texttools/pageReferences.h"
#include "texttools/pageSpecials.h"
#include "texttools/pageTree.h"

namespace
{
/// One pass over a page.
class PageCheck
{
public:
    PageCheck(QStringView text, const PageRules &rules, const PageCheckContext &context, const Vocabulary &vocabulary)
        : m_text(text),
          m_rules(rules),
          m_context(context),
          m_vocabulary(vocabulary),
          m_tokenizer(text),
          m_tree(text, vocabulary, m_problems),
          m_references(text, m_problems),
          m_attributes(text, rules, vocabulary, m_problems, m_references),
          m_hints(text, m_problems),
          m_specials(text, m_tree, m_problems),
          m_files(text, context.exists, m_problems)
    {
    }

    QList<PageProblem> run()
    {
        for (const html::Token *token = &m_tokenizer.next(); token->kind != html::TokenKind::End;
             token = &m_tokenizer.next())
            read(*token);
        m_tree.finish(m_text.size());
        if (!m_doctype && m_tree.wholePage())
            m_problems
                .error("doctype", m_first, QStringLiteral("The page does not say what document type it is of."),
                       QStringLiteral("<!DOCTYPE html>"))
                .fix = {{0, 0, QStringLiteral("<!DOCTYPE html>\r\n")}};
        m_references.finish();
        checkCharset();
        return m_problems.takeSorted();
    }

private:
    QStringView nameOf(const html::Token &token) const { return m_text.mid(token.name.start, token.name.length); }

    void read(const html::Token &token)
    {
        for (const html::FoundFault &fault : token.faults)
            if (!isXmlDeclaration(token))
                tellFault(fault, m_text, m_problems);
        if (m_first.length == 0 && !token.blank)
            m_first = token.range;
        switch (token.kind) {
        case html::TokenKind::StartTag:
            readStartTag(token);
            break;
        case html::TokenKind::EndTag:
            m_hints.endTag(token);
            m_specials.endTag(token);
            m_tree.endTag(token);
            m_tokenizer.setForeign(m_tree.inForeign());
            break;
        case html::TokenKind::Doctype:
            readDoctype(token);
            break;
        case html::TokenKind::Text:
        case html::TokenKind::RawText:
            readText(token);
            break;
        default:
            break;
        }
    }

    /// Pages written as XML begin with a declaration, which does no harm.
    bool isXmlDeclaration(const html::Token &token) const
    {
        return token.kind == html::TokenKind::Comment && token.range.start == 0 &&
               m_text.startsWith(QLatin1String("<?xml"));
    }

    void readText(const html::Token &token)
    {
        if (token.references)
            checkReferences(m_text, token.range, false, m_rules, m_problems);
        if (!token.blank)
            m_hints.text();
        m_tree.text(token);
    }

    void readStartTag(const html::Token &token)
    {
        const QStringView name = nameOf(token);
        const int element = m_tree.inForeign() ? 0 : m_vocabulary.element(name);
        m_attributes.take(token);
        m_tree.setInteractive(m_attributes.interactive(m_vocabulary.rule(element).tag, name));
        const PageTag parent = m_tree.current() ? m_tree.current()->tag : PageTag::Html;
        const PageTree::Opened opened = m_tree.startTag(token);
        m_tokenizer.setForeign(m_tree.inForeign());
        for (const html::Attribute &attribute : token.attributes)
            if (attribute.valued && m_text.mid(attribute.value.start, attribute.value.length).contains(u'&'))
                checkReferences(m_text, attribute.value, true, m_rules, m_problems);
        if (!opened.foreign)
            tellElement(token, opened);
        if (opened.judged)
            m_attributes.check(token, opened);
        m_hints.startTag(token, opened, m_attributes);
        m_specials.startTag(token, opened, parent, m_attributes);
        m_files.startTag(token);
        if (!opened.foreign && !opened.ignored)
            setMode(opened, name);
    }

    void tellElement(const html::Token &token, const PageTree::Opened &opened)
    {
        const ElementRule &rule = m_vocabulary.rule(opened.element);
        if (opened.unknown && opened.judged && m_problems.wants("unknown-element"))
            m_problems.error(
                "unknown-element", token.range, QStringLiteral("<%1> is no element.").arg(nameOf(token).toString()),
                m_vocabulary.today()
                    ? QStringLiteral("An element of the language, or a name with a hyphen for one of your own.")
                    : QString());
        if (rule.deprecated && m_problems.wants("deprecated"))
            m_problems.hint("deprecated", token.range, QStringLiteral("<%1> is deprecated.").arg(rule.name),
                            QStringLiteral("A style sheet, or an element of today."));
        if (token.selfClosing && !rule.isVoid && opened.element > 0 && opened.tag != PageTag::Svg &&
            opened.tag != PageTag::Math && !m_xml && m_problems.wants("slash-in-tag"))
            m_problems.error("slash-in-tag", token.range,
                             QStringLiteral("The \"/\" does not close <%1>; it counts for nothing.").arg(rule.name),
                             QStringLiteral("</%1> where it ends.").arg(rule.name));
    }

    void setMode(const PageTree::Opened &opened, QStringView name)
    {
        switch (opened.tag) {
        case PageTag::Script:
            m_tokenizer.setMode(html::TextMode::Script, name);
            break;
        case PageTag::Style:
        case PageTag::RawText:
            m_tokenizer.setMode(html::TextMode::Raw, name);
            break;
        case PageTag::Textarea:
        case PageTag::Title:
            m_tokenizer.setMode(html::TextMode::Rcdata, name);
            break;
        case PageTag::Plaintext:
            m_tokenizer.setMode(html::TextMode::Plain, name);
            break;
        default:
            break;
        }
    }

    void readDoctype(const html::Token &token)
    {
        const bool late = m_tree.current() != nullptr || m_doctype;
        m_doctype = true;
        m_xml = token.publicId.start >= 0 && m_tokenizer.textOf(token.publicId).contains(QLatin1String("XHTML"));
        m_tree.setXml(m_xml);
        if (late) {
            m_problems.error("doctype", token.range,
                             QStringLiteral("The document type stands at the start of the page only."),
                             QStringLiteral("Take it away."));
            return;
        }
        if (nameOf(token).compare(u"html", Qt::CaseInsensitive) != 0)
            m_problems.error("doctype", token.range, QStringLiteral("This is no document type of HTML."),
                             QStringLiteral("<!DOCTYPE html>"));
        else if (token.publicId.start >= 0)
            m_problems.hint("old-doctype", token.range,
                            QStringLiteral("The document type of an older HTML; the page is checked by its rules."),
                            QStringLiteral("<!DOCTYPE html>"));
    }

    void checkCharset()
    {
        if (!m_context.format)
            return;
        const QString declared = declaredCharset(m_text.toString());
        if (declared.isEmpty() || namesEncoding(declared, *m_context.format))
            return;
        const qsizetype at = m_text.indexOf(declared);
        m_problems.error("charset", {qMax<qsizetype>(at, 0), declared.size()},
                         QStringLiteral("The page is written in another encoding than \"%1\".").arg(declared));
    }

    QStringView m_text;
    const PageRules &m_rules;
    const PageCheckContext &m_context;
    const Vocabulary &m_vocabulary;
    PageProblems m_problems;
    html::Tokenizer m_tokenizer;
    PageTree m_tree;
    PageReferences m_references;
    PageAttributes m_attributes;
    PageHints m_hints;
    PageSpecials m_specials;
    PageFiles m_files;
    html::Range m_first;
    bool m_doctype = false;
    bool m_xml = false;
};

/// The rules that the page's document type asks for.
const Vocabulary &vocabularyOf(const QString &text, const PageRules &rules)
{
    html::Tokenizer tokenizer(text);
    for (const html::Token *token = &tokenizer.next();
         token->kind == html::TokenKind::Text || token->kind == html::TokenKind::Comment ||
         token->kind == html::TokenKind::Doctype;
         token = &tokenizer.next()) {
        if (token->kind == html::TokenKind::Text && !token->blank)
            break;
        if (token->kind != html::TokenKind::Doctype)
            continue;
        const Vocabulary *old =
            token->publicId.start < 0 ? nullptr : rules.ofPublicId(tokenizer.textOf(token->publicId));
        return old ? *old : rules.today();
    }
    return rules.today();
}

QString counted(int count, const char *one, const char *many)
{
    return QString::number(count) + u' ' + QLatin1String(count == 1 ? one : many);
}
} // namespace

QList<PageProblem> checkPage(const QString &text, const PageRules &rules, const PageCheckContext &context)
{
    return PageCheck(text, rules, context, vocabularyOf(text, rules)).run();
}

QString problemsCounted(const QList<PageProblem> &problems)
{
    int errors = 0;
    for (const PageProblem &problem : problems)
        errors += problem.kind == PageProblem::Kind::Error ? 1 : 0;
    const int hints = static_cast<int>(problems.size()) - errors;
    QStringList parts;
    if (errors > 0)
        parts.append(counted(errors, "error", "errors"));
    if (hints > 0)
        parts.append(counted(hints, "hint", "hints"));
    return parts.isEmpty() ? QStringLiteral("Nothing found.") : parts.join(QStringLiteral(", "));
}

QString withFix(const QString &text, const PageProblem &problem)
{
    QString result = text;
    for (const PageFix &fix : problem.fix)
        result.replace(fix.start, fix.length, fix.text);
    return result;
}
