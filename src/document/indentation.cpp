#include "document/indentation.h"

#include <algorithm>

namespace
{
constexpr qsizetype Step = IndentStep.size();

TextSelection caretAt(qsizetype position)
{
    return {position, 0};
}

IndentResult indentedCaret(qsizetype caret)
{
    return {TextReplacement{caret, 0, IndentStep.toString()}, {}, caretAt(caret + Step), false};
}

IndentResult indentedLines(QStringView text, TextSelection selection)
{
    const QStringView selected = text.mid(selection.start, selection.length);
    QString lines = IndentStep.toString();
    qsizetype breaks = 0;
    qsizetype copied = 0;
    qsizetype next = selected.indexOf(u'\n') + 1;
    // From the second break on, the length that is searched lacks the first line's step.
    while (next > 0 && (breaks == 0 || next + Step <= selected.size())) {
        lines += selected.mid(copied, next - copied);
        lines += IndentStep;
        copied = next;
        ++breaks;
        next = selected.indexOf(u'\n', copied) + 1;
    }
    lines += selected.mid(copied);

    const qsizetype searched = selected.size() + Step * std::max<qsizetype>(breaks, 1);
    const qsizetype toEnd = text.size() - selection.start + Step * (breaks + 1);
    return {TextReplacement{selection.start, selection.length, lines},
            TextSelection{selection.start, std::min(searched + 2 * Step, toEnd)}, caretAt(selection.start), false};
}

IndentResult outdentedCaret(QStringView text, qsizetype caret)
{
    if (caret < Step || text.mid(caret - Step, Step) != IndentStep)
        return {{}, {}, caretAt(caret), false};
    return {TextReplacement{caret - Step, Step, QString()}, {}, caretAt(caret - Step), true};
}

// A length of the selection set one step shorter; where that would be negative, it stays.
qsizetype shortened(qsizetype length)
{
    return length < Step ? length : length - Step;
}

IndentResult outdentedLines(QStringView text, TextSelection selection)
{
    const QStringView rest = text.mid(selection.start);
    if (!rest.startsWith(IndentStep))
        return {{}, {}, caretAt(selection.start), false};

    const QString lineStart = u'\n' + IndentStep.toString();
    QString lines;
    qsizetype breaks = 0;
    qsizetype copied = Step;
    qsizetype next = rest.indexOf(lineStart, copied);
    // From the second break on, the length that is searched still holds the first line's step.
    while (next >= 0 && next + lineStart.size() <= selection.length + (breaks == 0 ? 0 : Step)) {
        lines += rest.mid(copied, next + 1 - copied);
        copied = next + lineStart.size();
        ++breaks;
        next = rest.indexOf(lineStart, copied);
    }

    const qsizetype toEnd = rest.size() - Step * (breaks + 1);
    const qsizetype searched = breaks == 0 ? std::max<qsizetype>(selection.length - Step, 0)
                                           : std::min(selection.length - Step * breaks, toEnd);
    return {TextReplacement{selection.start, copied, lines}, TextSelection{selection.start, shortened(searched)},
            caretAt(selection.start), false};
}
} // namespace

IndentResult IndentText(QStringView text, TextSelection selection, bool indent)
{
    if (indent)
        return selection.length == 0 ? indentedCaret(selection.start) : indentedLines(text, selection);
    return selection.length == 0 ? outdentedCaret(text, selection.start) : outdentedLines(text, selection);
}
