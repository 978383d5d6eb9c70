#include "texttools/pageReader.h"

#include "texttools/pageFaults.h"

PageReader::PageReader(QStringView text, const PageRules &rules, const Vocabulary &vocabulary, bool files,
                       PageProblems &problems)
    : m_text(text),
      m_rules(rules),
      m_vocabulary(vocabulary),
      m_problems(problems),
      m_tokenizer(text),
      m_tree(text, vocabulary, problems),
      m_references(text),
      m_attributes(text, rules, vocabulary, problems, m_references),
      m_hints(text, problems),
      m_specials(text, m_tree, m_references, problems),
      m_files(text, files)
{
}

void PageReader::begin(qsizetype position, const State &state)
{
    m_tokenizer = html::Tokenizer(m_text, position);
    m_tree.setState(state.tree);
    m_tokenizer.setForeign(m_tree.inForeign());
    m_hints.setState(state.hints);
    m_specials.setState(state.specials);
    m_files.setOtherBase(state.otherBase);
    m_position = position;
    m_first = state.first;
    m_doctype = state.doctype;
    m_xml = state.xml;
}

PageReader::State PageReader::state() const
{
    return {m_tree.state(), m_hints.state(), m_specials.state(), m_first, m_files.otherBase(), m_doctype, m_xml};
}

bool PageReader::State::isSame(const State &older, const PageShift &shift) const
{
    return otherBase == older.otherBase && doctype == older.doctype && xml == older.xml &&
           specials.isSame(older.specials, shift) && shift.moved(older.first) == first &&
           hints.isSame(older.hints, shift) && tree.isSame(older.tree, shift);
}

void PageReader::State::move(const PageShift &shift)
{
    tree.move(shift);
    hints.move(shift);
    specials.move(shift);
    shift.move(first);
}

bool PageReader::readOn()
{
    for (const html::Token *token = &m_tokenizer.next(); token->kind != html::TokenKind::End;
         token = &m_tokenizer.next()) {
        read(*token);
        m_position = token->end();
        if (token->kind == html::TokenKind::EndTag)
            return true;
    }
    return false;
}

void PageReader::read(const html::Token &token)
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
bool PageReader::isXmlDeclaration(const html::Token &token) const
{
    return token.kind == html::TokenKind::Comment && token.range.start == 0 &&
           m_text.startsWith(QLatin1String("<?xml"));
}

void PageReader::readText(const html::Token &token)
{
    if (token.references)
        checkReferences(m_text, token.range, false, m_rules, m_problems);
    if (!token.blank)
        m_hints.text();
    m_tree.text(token);
}

void PageReader::readStartTag(const html::Token &token)
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
    else if (!m_tree.inside(PageTag::Template)) // whose names are not those of the page
        m_attributes.collect(token, opened);
    m_hints.startTag(token, opened, m_attributes);
    m_specials.startTag(token, opened, parent, m_attributes);
    m_files.startTag(token);
    if (!opened.foreign && !opened.ignored)
        setMode(opened, name);
}

void PageReader::tellElement(const html::Token &token, const PageTree::Opened &opened)
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

void PageReader::setMode(const PageTree::Opened &opened, QStringView name)
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

void PageReader::readDoctype(const html::Token &token)
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
