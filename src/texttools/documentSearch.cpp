#include "texttools/documentSearch.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "common/surfaceSelection.h"
#include "common/text.h"
#include "forms/programContext.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/yielder.h"
#include "texttools/replaceRun.h"

#include <QScopedValueRollback>
#include <algorithm>

namespace
{
constexpr qint64 MillisecondsBeforeProgress = 500;
/// Up to this length a text is coloured, and each match is replaced by itself, so that what stands between matches
/// keeps its colours. In longer texts several are replaced at once, the more the longer it is.
constexpr qsizetype ReplacedOneByOne = 63900;
constexpr qsizetype CharactersForAMatch = 4096;

qsizetype matchesAtOnce(qsizetype textLength)
{
    return textLength <= ReplacedOneByOne ? 1 : textLength / CharactersForAMatch;
}

MessageBox information(const QString &text)
{
    return {QStringLiteral("Find"), text, MessageIcon::Information, MessageButtons::OK};
}

MessageBox entireDocumentQuestion()
{
    return {QStringLiteral("Single-Character Upwards Search"),
            QStringLiteral("An \"upwards\" search for a single character can not be performed when \"tags only\" or "
                           "\"text only\" has been selected from the Search box.\r\n\r\n"
                           "Would you like to search the entire document instead?"),
            MessageIcon::Question, MessageButtons::YesNo};
}

void apply(const ReplaceRun::Change &change, TextSurface &edit)
{
    edit.setSelStart(change.start);
    edit.setSelLength(change.length);
    edit.setSelText(change.text);
}
} // namespace

DocumentSearch::DocumentSearch(ProgramContext &context, Window window) : m_context(context), m_window(std::move(window))
{
}

void DocumentSearch::restart()
{
    m_state.NextPosition = 0;
    SearchStarted = false;
    clearMarks();
}

void DocumentSearch::clearMarks()
{
    for (Document *document : m_context.mainWindow->openDocuments())
        document->txtEdit().setMarkedRanges(MarkOwner::Search, {});
    m_window.showFound({});
}

void DocumentSearch::begin()
{
    const Document *document = m_context.mainWindow->activeDocument();
    if (SearchStarted || !document)
        return;
    StartCaption = document->documentCaption();
    SearchStarted = true;
}

void DocumentSearch::FindNext(SearchOrder &order)
{
    begin();
    FindStep(order);
}

void DocumentSearch::ReplaceCurrent(SearchOrder &order, const QString &replacement)
{
    begin();
    Document *document = m_context.mainWindow->activeDocument();
    if (document && m_state.FoundMatch && UCase(document->txtEdit().SelText()) == UCase(order.options.find))
        document->txtEdit().setSelText(replacement);
    FindStep(order);
}

void DocumentSearch::FindStep(SearchOrder &order)
{
    goesRound() ? findRound(order) : findToTheEnd(order);
}

bool DocumentSearch::goesRound() const
{
    return m_context.state.habits.HabitFind;
}

/// The document at which the search began may be closed or have another name by now, so the documents are counted, too.
void DocumentSearch::findToTheEnd(SearchOrder &order)
{
    if (!m_context.mainWindow->activeDocument())
        return;
    for (qsizetype left = m_context.mainWindow->openDocuments().size(); left > 0; --left) {
        Document *document = m_context.mainWindow->activeDocument();
        if (!document || !mayBeEntire(order.options) || SearchDocument(*document, order.options))
            return;
        if (!order.openDocuments || !toNextDocument(*document))
            break;
    }
    tellEnd();
}

/// The document at which it begins comes last, too: from its start, or for "Up" from its end.
void DocumentSearch::findRound(const SearchOrder &order)
{
    const qsizetype others = order.openDocuments ? m_context.mainWindow->openDocuments().size() - 1 : 0;
    const qsizetype turns = others > 0 ? others + 2 : 1;
    const bool up = order.options.direction == SearchDirection::Up;
    for (qsizetype turn = 0; turn < turns; ++turn) {
        Document *document = m_context.mainWindow->activeDocument();
        if (turn > 0 && document) {
            document->sendToBack();
            document = m_context.mainWindow->activeDocument();
        }
        if (!document)
            return;
        const TextSurface &edit = document->txtEdit();
        const TextSelection from = turn == 0 ? selectionOf(edit) : TextSelection{up ? edit.textLength() : 0, 0};
        const RoundTurn kind = turns == 1          ? RoundTurn::Round
                               : turn == turns - 1 ? RoundTurn::BehindRound
                                                   : RoundTurn::ToTheEnd;
        if (searchOnward(*document, order.options, from, kind))
            return;
    }
    m_state = {};
    tellFound(QStringLiteral("Not found"));
}

/// Marks all matches of the document and selects the next one; false, with the selection as it was, without one.
bool DocumentSearch::searchOnward(Document &document, const FindOptions &options, const TextSelection &from,
                                  RoundTurn turn)
{
    TextSurface &edit = document.txtEdit();
    const QList<qsizetype> matches = allMatches(edit.Text(), options);
    QList<MarkedRange> marks;
    marks.reserve(matches.size());
    for (const qsizetype place : matches)
        marks.append({place, options.find.size(), MarkKind::Match, {}, {}});
    edit.setMarkedRanges(MarkOwner::Search, marks);
    const std::optional<RoundStep> step = stepRound(matches, options, m_state, from);
    if (!step || (step->wentRound && turn == RoundTurn::ToTheEnd))
        return false;
    const qsizetype place = matches[step->index];
    m_state = {.ContinueSearch = false, .NextPosition = place + 2, .FoundMatch = true};
    edit.setSelStart(place);
    edit.setSelLength(options.find.size());
    QString told = QStringLiteral("%1 of %2").arg(step->index + 1).arg(matches.size());
    if (step->wentRound || turn == RoundTurn::BehindRound)
        told += options.direction == SearchDirection::Up ? QStringLiteral(", from the end")
                                                         : QStringLiteral(", from the start");
    tellFound(told);
    return true;
}

/// The window may be closed while its search is repeated, so the status bar tells it, too.
void DocumentSearch::tellFound(const QString &text)
{
    m_window.showFound(text);
    m_context.mainWindow->SetStatusText(text);
    m_context.mainWindow->enableResetBar();
}

bool DocumentSearch::SearchDocument(Document &document, const FindOptions &options)
{
    TextSurface &edit = document.txtEdit();
    const qsizetype start = searchStart(options, m_state, selectionOf(edit));
    const qsizetype place = SearchText(edit.Text(), options, start, m_state);
    if (place == 0)
        return false;
    edit.setSelStart(place - 1);
    edit.setSelLength(options.find.size());
    return true;
}

bool DocumentSearch::toNextDocument(Document &document)
{
    document.sendToBack();
    const Document *next = m_context.mainWindow->activeDocument();
    return next && next->documentCaption() != StartCaption;
}

bool DocumentSearch::mayBeEntire(FindOptions &options)
{
    if (!isSingleCharacterUpwards(options))
        return true;
    if (m_context.services.messageBoxes.show(entireDocumentQuestion()) != MessageAnswer::Yes) {
        m_state.FoundMatch = false;
        return false;
    }
    options.type = SearchType::EntireDocument;
    m_window.becomeEntire();
    return true;
}

void DocumentSearch::tellEnd()
{
    m_context.services.messageBoxes.show(information(QStringLiteral("The specified region has been searched.")));
}

void DocumentSearch::ReplaceAll(SearchOrder &order, const QString &replacement)
{
    const QScopedValueRollback<bool> replacing(ReplaceAllRunning, true);
    ReplaceCount = 0;
    m_cancelled = false;
    m_sinceBegin.start();
    if (goesRound())
        takeAll(order);
    if (order.openDocuments)
        replaceInOpenDocuments(order, replacement);
    else if (Document *document = m_context.mainWindow->activeDocument())
        ReplaceAllInDocument(*document, order.options, replacement);
    tellReplacements();
}

/// Where a search goes round, it has no start and no direction: all is all that was counted.
void DocumentSearch::takeAll(SearchOrder &order)
{
    order.options.direction = SearchDirection::All;
    m_state = {};
    clearMarks();
}

/// Each document is taken once, in the order in which the windows lie, and the one in front is in front again at the
/// end.
void DocumentSearch::replaceInOpenDocuments(SearchOrder &order, const QString &replacement)
{
    QList<const Document *> done;
    Document *document = m_context.mainWindow->activeDocument();
    StartCaption = document ? document->documentCaption() : QString();
    while (document && !m_cancelled && !done.contains(document)) {
        done.append(document);
        ReplaceAllInDocument(*document, order.options, replacement);
        m_state = {};
        if (document == m_context.mainWindow->activeDocument())
            document->sendToBack();
        document = m_context.mainWindow->activeDocument();
    }
}

void DocumentSearch::ReplaceAllInDocument(Document &document, FindOptions &options, const QString &replacement)
{
    TextSurface &edit = document.txtEdit();
    edit.setLocked(true);
    const bool mayReplace = mayBeEntire(options);
    edit.setPaintingHeld(true);
    const std::optional<qsizetype> last = mayReplace ? replaceMatches(document, options, replacement) : std::nullopt;
    if (!isOpen(&document))
        return;
    edit.setPaintingHeld(false);
    if (mayReplace && !m_cancelled && !goesRound())
        tellEnd();
    if (!isOpen(&document))
        return;
    edit.setLocked(false);
    if (last || !goesRound())
        edit.setSelStart(last.value_or(0));
}

/// Where the last match stood; nothing without one.
std::optional<qsizetype> DocumentSearch::replaceMatches(Document &document, FindOptions &options,
                                                        const QString &replacement)
{
    TextSurface &edit = document.txtEdit();
    Yielder &yielder = m_context.services.yielder;
    std::optional<qsizetype> last;
    qsizetype start = searchStart(options, m_state, selectionOf(edit));
    m_state = {};
    yielder.beginPass();
    while (true) {
        yielder.yield();
        if (!isOpen(&document) || m_cancelled)
            return last;
        ReplaceRun run(edit.Text(), options, replacement, start);
        for (qsizetype left = matchesAtOnce(edit.textLength()); left > 0 && run.advance(); --left)
            ;
        if (run.count() == 0)
            return last;
        apply(run.change(), edit);
        last = run.lastPlace();
        start = run.nextStart();
        ReplaceCount += run.count();
        showProgress();
    }
}

void DocumentSearch::showProgress()
{
    if (m_sinceBegin.elapsed() >= MillisecondsBeforeProgress)
        m_context.mainWindow->SetStatusText(
            QStringLiteral("%L1 replaced so far... [press Escape to stop]").arg(ReplaceCount));
}

void DocumentSearch::tellReplacements()
{
    if (!m_context.mainWindow->activeDocument()) // closed meanwhile, perhaps with the whole program
        return;
    m_context.mainWindow->SetStatusReady();
    if (m_cancelled) {
        m_context.mainWindow->SetStatusText(QStringLiteral("Stopped. Replaced: %L1").arg(ReplaceCount));
        return;
    }
    goesRound() ? showReplacements() : boxReplacements();
}

void DocumentSearch::showReplacements()
{
    tellFound(ReplaceCount == 0 ? QStringLiteral("Not found") : QStringLiteral("%L1 replaced").arg(ReplaceCount));
}

void DocumentSearch::boxReplacements()
{
    m_context.services.messageBoxes.show(information(
        ReplaceCount == 1
            ? QStringLiteral("The specified region has been searched. One replacement was made.")
            : QStringLiteral("The specified region has been searched. %1 replacements were made.").arg(ReplaceCount)));
}

bool DocumentSearch::isOpen(const Document *document) const
{
    const QList<Document *> open = m_context.mainWindow->openDocuments();
    return std::any_of(open.begin(), open.end(), [document](const Document *each) { return each == document; });
}
