#include "texttools/pageChecker.h"

#include "common/pageCharset.h"

#include <algorithm>

namespace
{
constexpr qsizetype LeastPart = 4096; // characters
/// Where more elements are open, no part begins: what is known there would take more room than the page.
constexpr qsizetype DeepestPart = 100;
/// As far as a token may look ahead of its end, and more.
constexpr qsizetype LookAhead = 64;

using Counts = PageProblems::Counts;

QByteArray ruleOf(const PageProblem &problem)
{
    return problem.rule.toLatin1();
}

Counts withCounted(Counts counts, const QList<PageProblem> &problems)
{
    for (const PageProblem &problem : problems)
        ++counts[ruleOf(problem)];
    return counts;
}

void moveProblem(PageProblem &problem, const PageShift &shift)
{
    const html::Range range = shift.moved({problem.start, problem.length});
    problem.start = range.start;
    problem.length = range.length;
    for (PageFix &fix : problem.fix) {
        const html::Range changed = shift.moved({fix.start, fix.length});
        fix.start = changed.start;
        fix.length = changed.length;
    }
}

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

} // namespace

void PageChecker::Part::move(const PageShift &shift)
{
    start += shift.by();
    state.move(shift);
    for (PageProblem &problem : problems)
        moveProblem(problem, shift);
    for (PageName &name : names) {
        shift.move(name.range);
        shift.move(name.attribute);
    }
    for (PageFile &file : files)
        shift.move(file.range);
}

QList<PageProblem> PageChecker::check(const QString &text, const PageCheckContext &context)
{
    const Vocabulary &vocabulary = vocabularyOf(text, m_rules);
    const bool files = static_cast<bool>(context.exists);
    const bool anew = m_parts.empty() || &vocabulary != m_vocabulary || files != m_files;
    const PageShift shift = anew ? PageShift{0, m_text.size(), text.size()} : PageShift::between(m_text, text);
    const bool same = !anew && shift.start == text.size() && shift.by() == 0;
    m_text = text;
    m_vocabulary = &vocabulary;
    m_files = files;
    if (anew)
        m_parts.assign(1, {});
    if (anew)
        readFrom(0, shift);
    else if (!same) {
        const auto behind = std::find_if(m_parts.begin() + 1, m_parts.end(),
                                         [&](const Part &part) { return part.start + LookAhead > shift.start; });
        readFrom(static_cast<size_t>(behind - m_parts.begin()) - 1, shift);
    }
    return gathered(context);
}

/// Reads from the start of a part to where all that follows is known already, or to the end.
void PageChecker::readFrom(size_t part, const PageShift &shift)
{
    std::vector<Part> older(std::make_move_iterator(m_parts.begin() + static_cast<std::ptrdiff_t>(part)),
                            std::make_move_iterator(m_parts.end()));
    m_parts.resize(part);
    auto next =
        std::find_if(older.begin() + 1, older.end(), [&](const Part &one) { return one.start >= shift.oldEnd; });

    PageProblems problems(countsBefore(part));
    PageReader reader(m_text, m_rules, *m_vocabulary, m_files, problems);
    Part current{older.front().start, older.front().state, {}, {}, {}, {}};
    reader.begin(current.start, current.state);
    const auto close = [&] {
        current.problems = problems.takeFound();
        current.refused = problems.takeRefused();
        current.names = reader.takeNames();
        current.files = reader.takeFiles();
        m_parts.push_back(std::move(current));
    };
    while (reader.readOn()) {
        const qsizetype position = reader.position();
        while (next != older.end() && next->start + shift.by() < position)
            ++next;
        const bool known = next != older.end() && next->start + shift.by() == position;
        if (known && reader.state().isSame(next->state, shift)) {
            close();
            for (; next != older.end(); ++next) {
                next->move(shift);
                m_parts.push_back(std::move(*next));
            }
            shift.move(m_end.first);
            return;
        }
        if (position - current.start >= LeastPart && reader.depth() <= DeepestPart) {
            close();
            current = {position, reader.state(), {}, {}, {}, {}};
        }
    }
    const PageReader::State last = reader.state();
    reader.finish();
    close();
    m_end = {last.first, last.doctype, last.tree.wholePage};
}

/// Reads a part again, of whose problems there is room for more than before.
void PageChecker::readAgain(size_t part, const Counts &counts)
{
    Part &again = m_parts[part];
    PageProblems problems(counts);
    PageReader reader(m_text, m_rules, *m_vocabulary, m_files, problems);
    reader.begin(again.start, again.state);
    const qsizetype end = part + 1 < m_parts.size() ? m_parts[part + 1].start : -1;
    while (reader.readOn() && reader.position() != end)
        ;
    if (end < 0)
        reader.finish();
    again.problems = problems.takeFound();
    again.refused = problems.takeRefused();
}

Counts PageChecker::countsBefore(size_t part) const
{
    Counts counts;
    for (size_t i = 0; i < part; ++i)
        counts = withCounted(std::move(counts), m_parts[i].problems);
    return counts;
}

/// Adds what a part has found, of each rule no more than is wanted.
Counts PageChecker::addPart(size_t part, const Counts &counts, QList<PageProblem> &found)
{
    const Counts whole = withCounted(counts, m_parts[part].problems);
    const QSet<QByteArray> &refused = m_parts[part].refused;
    if (std::any_of(refused.begin(), refused.end(),
                    [&](const QByteArray &rule) { return whole.value(rule) < MostOfARule; }))
        readAgain(part, counts);
    Counts told = counts;
    for (const PageProblem &problem : std::as_const(m_parts[part].problems)) {
        int &count = told[ruleOf(problem)];
        if (count >= MostOfARule)
            continue;
        ++count;
        found.append(problem);
    }
    return told;
}

QList<PageProblem> PageChecker::gathered(const PageCheckContext &context)
{
    QList<PageProblem> found;
    Counts counts;
    for (size_t part = 0; part < m_parts.size(); ++part)
        counts = addPart(part, counts, found);
    PageProblems problems(counts);
    checkDoctype(problems);
    PageNames names(m_text, problems);
    PageFileLook files(context.exists, problems);
    for (const Part &part : m_parts) {
        names.add(part.names);
        files.add(part.files);
    }
    names.finish();
    checkCharset(context, problems);
    found += problems.takeFound();
    std::stable_sort(found.begin(), found.end(),
                     [](const PageProblem &a, const PageProblem &b) { return a.start < b.start; });
    return found;
}

void PageChecker::checkDoctype(PageProblems &problems) const
{
    if (m_end.doctype || !m_end.wholePage)
        return;
    problems
        .error("doctype", m_end.first, QStringLiteral("The page does not say what document type it is of."),
               QStringLiteral("<!DOCTYPE html>"))
        .fix = {{0, 0, QStringLiteral("<!DOCTYPE html>\r\n")}};
}

void PageChecker::checkCharset(const PageCheckContext &context, PageProblems &problems) const
{
    if (!context.format)
        return;
    const QString declared = declaredCharset(m_text);
    if (declared.isEmpty() || namesEncoding(declared, *context.format))
        return;
    const qsizetype at = m_text.indexOf(declared);
    problems.error("charset", {qMax<qsizetype>(at, 0), declared.size()},
                   QStringLiteral("The page is written in another encoding than \"%1\".").arg(declared));
}
