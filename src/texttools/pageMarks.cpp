#include "texttools/pageMarks.h"

#include "common/textSurface.h"

#include <QPlainTextEdit>
#include <algorithm>

namespace
{
constexpr qsizetype MostMarks = 1000;

QTextCharFormat formatOf(const PageProblem &problem)
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(problem.kind == PageProblem::Kind::Error ? QColor(0xE0, 0x3C, 0x31)
                                                                      : QColor(0x4C, 0x8B, 0xD9));
    return format;
}

/// A line break is two characters of the surface and one of its document.
int documentPosition(const TextSurface &surface, qsizetype position)
{
    return static_cast<int>(position - surface.lineFromCharacter(position));
}
} // namespace

void showPageMarks(TextSurface &surface, const QList<PageProblem> &problems)
{
    auto *edit = dynamic_cast<QPlainTextEdit *>(&surface);
    if (!edit)
        return;
    QList<QTextEdit::ExtraSelection> marks;
    for (const PageProblem &problem : problems.first(std::min(problems.size(), MostMarks))) {
        QTextCursor cursor(edit->document());
        const int last = edit->document()->characterCount() - 1;
        const int start = std::min(documentPosition(surface, problem.start), last);
        const int end = std::min(documentPosition(surface, problem.start + problem.length), last);
        cursor.setPosition(start);
        cursor.setPosition(std::max(start, end), QTextCursor::KeepAnchor);
        marks.append({cursor, formatOf(problem)});
    }
    edit->setExtraSelections(marks);
}
