#pragma once

#include "texttools/findText.h"

#include <QElapsedTimer>
#include <functional>
#include <optional>

class Document;
class ReplaceRun;
struct ProgramContext;

/// What is searched for, and where.
struct SearchOrder {
    FindOptions options;
    bool openDocuments = false; ///< all open documents, from the active one on; otherwise the active one alone
};

/// Finding and replacing in the documents, as the Find window orders it. Each search goes on where the last one left
/// off; all outcomes are told to the user here.
class DocumentSearch
{
public:
    /// What it wants of the window that orders it.
    struct Window {
        std::function<void()> becomeEntire; ///< the user lets a search become one of the entire document
        /// Where a search that goes round stands, "2 of 5", or what it has replaced; empty where that is not known any
        /// more.
        std::function<void(const QString &)> showFound;
    };
    DocumentSearch(ProgramContext &context, Window window);

    /// Another text is searched for: the next search is a new one.
    void restart();
    /// Takes the marks of what was found away.
    void clearMarks();
    void FindNext(SearchOrder &order);
    /// Replaces the selection if it is what was found last, and finds the next match.
    void ReplaceCurrent(SearchOrder &order, const QString &replacement);

    /// Replaces every match, and tells the number. The main window stays usable meanwhile, but for the document that is
    /// being worked on.
    void ReplaceAll(SearchOrder &order, const QString &replacement);
    bool isReplacing() const { return ReplaceAllRunning; }
    void cancelReplacing() { m_cancelled = true; }

private:
    /// What a turn to a document may do at its end, and whether the search went round to get there.
    enum class RoundTurn { ToTheEnd, Round, BehindRound };

    void begin();
    void FindStep(SearchOrder &order);
    bool goesRound() const;
    void findToTheEnd(SearchOrder &order);
    void findRound(const SearchOrder &order);
    bool searchOnward(Document &document, const FindOptions &options, const TextSelection &from, RoundTurn turn);
    void tellFound(const QString &text);
    bool SearchDocument(Document &document, const FindOptions &options);
    bool toNextDocument(Document &document);
    bool mayBeEntire(FindOptions &options);
    void tellEnd();

    void takeAll(SearchOrder &order);
    void replaceInOpenDocuments(SearchOrder &order, const QString &replacement);
    void ReplaceAllInDocument(Document &document, FindOptions &options, const QString &replacement);
    std::optional<qsizetype> replaceMatches(Document &document, FindOptions &options, const QString &replacement);
    void showProgress();
    void tellReplacements();
    void showReplacements();
    void boxReplacements();
    bool isOpen(const Document *document) const;

    ProgramContext &m_context;
    Window m_window;
    FindState m_state;
    bool SearchStarted = false; ///< a search has begun since the find text changed
    QString StartCaption;       ///< of the document at which it began
    bool ReplaceAllRunning = false;
    bool m_cancelled = false;
    qsizetype ReplaceCount = 0;
    QElapsedTimer m_sinceBegin;
};
