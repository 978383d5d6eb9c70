#pragma once

#include "unit/document/plainEdit.h"

#include <functional>
#include <vector>

/// Indenting and the optimiser as their numbered procedures state them, one step after the other, on a simulated
/// selection. Against them the program's own are compared.
class IndentReference
{
public:
    struct Snapshot {
        QString text;
        int start = 0;
        int length = 0;
        bool operator==(const Snapshot &) const = default;
    };
    enum class Outcome { Ended, GaveUp };

    explicit IndentReference(const QString &text) : txtEdit(text) {}

    void IndentText(bool indent);

    /// What happens where no line break is found behind the place that the last line left: the search's 0 taken as it
    /// stands leads back to the top of the text, which may go on for ever; the decided reading ends the run.
    enum class AtLastLine { GoesBackToTheTop, Ends };
    /// Gives up after `mostLines` lines.
    Outcome OptimiseSyntax(AtLastLine rule, int mostLines);

    PlainEdit txtEdit;
    std::vector<Snapshot> snapshots;
    int lines = 0; ///< how often the optimiser let events run
    bool tookFocus = false;

private:
    void outdent(bool noSelection, int start, int length);
    void indent(bool noSelection, int start, int length);
    void recordAndCollapse();
    void UndoRedoChange();
    bool optimiseLine(int &pos, AtLastLine rule);
    void indentContents(const QString &closing, int lineEnd, int &pos);
};
