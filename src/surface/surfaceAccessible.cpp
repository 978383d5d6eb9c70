#include "surface/surfaceAccessible.h"

#include "surface/editSurface.h"
#include "surface/surfaceMoves.h"

#include <QScopedValueRollback>
#include <algorithm>

namespace
{
QString withNarrowBreaks(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QAccessibleInterface *surfaceInterface(const QString &, QObject *object)
{
    auto *surface = qobject_cast<EditSurface *>(object);
    return surface ? new SurfaceAccessible(surface) : nullptr;
}
} // namespace

SurfaceAccessible::SurfaceAccessible(EditSurface *surface) : QAccessibleWidget(surface, QAccessible::EditableText) {}

void SurfaceAccessible::install()
{
    static const bool installed = (QAccessible::installFactory(surfaceInterface), true);
    Q_UNUSED(installed)
}

void SurfaceAccessible::tellChange(EditSurface *surface, qsizetype offset, const QString &removed,
                                   const QString &inserted)
{
    if (!isWatched())
        return;
    const auto at = static_cast<int>(offset);
    if (!removed.isEmpty()) {
        QAccessibleTextRemoveEvent event(surface, at, withNarrowBreaks(removed));
        QAccessible::updateAccessibility(&event);
    }
    if (!inserted.isEmpty()) {
        QAccessibleTextInsertEvent event(surface, at, withNarrowBreaks(inserted));
        QAccessible::updateAccessibility(&event);
    }
}

void SurfaceAccessible::tellSelection(EditSurface *surface)
{
    if (!isWatched())
        return;
    const LineIndex &lines = surface->m_text.lines();
    QAccessibleTextCursorEvent caret(surface, static_cast<int>(lines.toNarrow(surface->m_selection.caret)));
    QAccessible::updateAccessibility(&caret);
    QAccessibleTextSelectionEvent selection(surface, static_cast<int>(lines.toNarrow(surface->m_selection.from())),
                                            static_cast<int>(lines.toNarrow(surface->m_selection.to())));
    selection.setCursorPosition(caret.cursorPosition());
    QAccessible::updateAccessibility(&selection);
}

EditSurface &SurfaceAccessible::surface() const
{
    return *static_cast<EditSurface *>(object());
}

qsizetype SurfaceAccessible::position(int offset) const
{
    const LineIndex &lines = surface().m_text.lines();
    return offset < 0 ? lines.length() : lines.toWide(offset); // below 0 stands for the end
}

int SurfaceAccessible::offset(qsizetype position) const
{
    return static_cast<int>(surface().m_text.lines().toNarrow(position));
}

QAccessible::State SurfaceAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.selectableText = true;
    state.editable = !surface().Locked();
    state.readOnly = surface().Locked();
    return state;
}

QString SurfaceAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? withNarrowBreaks(surface().Text()) : QAccessibleWidget::text(kind);
}

void *SurfaceAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

void SurfaceAccessible::selection(int index, int *start, int *end) const
{
    const bool there = index == 0 && selectionCount() > 0;
    *start = there ? offset(surface().m_selection.from()) : 0;
    *end = there ? offset(surface().m_selection.to()) : 0;
}

int SurfaceAccessible::selectionCount() const
{
    return surface().m_selection.isEmpty() ? 0 : 1;
}

void SurfaceAccessible::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void SurfaceAccessible::removeSelection(int index)
{
    if (index == 0)
        surface().select(surface().m_selection.caret, surface().m_selection.caret);
}

void SurfaceAccessible::setSelection(int index, int start, int end)
{
    if (index == 0)
        surface().select(position(start), position(end));
}

int SurfaceAccessible::cursorPosition() const
{
    return offset(surface().m_selection.caret);
}

void SurfaceAccessible::setCursorPosition(int at)
{
    surface().select(position(at), position(at));
}

QString SurfaceAccessible::text(int start, int end) const
{
    const qsizetype from = position(start);
    return withNarrowBreaks(surface().textPart(from, std::max(position(end) - from, qsizetype(0))));
}

/// The character, word, line or paragraph that holds an offset; for other boundaries, the line.
QString SurfaceAccessible::unitAt(int at, QAccessible::TextBoundaryType by, int *start, int *end) const
{
    const SurfaceText &text = surface().m_text;
    const qsizetype place = position(at);
    qsizetype from = place;
    qsizetype to = place;
    if (by == QAccessible::CharBoundary) {
        to = surfaceMoves::nextCharacter(text, place);
    } else if (by == QAccessible::WordBoundary) {
        from = surfaceMoves::startOfWord(text, place);
        to = std::max(surfaceMoves::nextWord(text, from), from);
    } else if (by == QAccessible::NoBoundary) {
        from = 0;
        to = text.length();
    } else {
        const qsizetype line = text.lineAt(place);
        from = text.lineStart(line);
        to = line + 1 < text.lineCount() ? text.lineStart(line + 1) : text.length();
    }
    *start = offset(from);
    *end = offset(to);
    return withNarrowBreaks(text.mid(from, to - from));
}

QString SurfaceAccessible::textAtOffset(int at, QAccessible::TextBoundaryType by, int *start, int *end) const
{
    return unitAt(at, by, start, end);
}

QString SurfaceAccessible::textBeforeOffset(int at, QAccessible::TextBoundaryType by, int *start, int *end) const
{
    unitAt(at, by, start, end);
    if (*start > 0 && by != QAccessible::NoBoundary)
        return unitAt(*start - 1, by, start, end);
    *start = *end = -1;
    return {};
}

QString SurfaceAccessible::textAfterOffset(int at, QAccessible::TextBoundaryType by, int *start, int *end) const
{
    unitAt(at, by, start, end);
    if (*end < characterCount() && by != QAccessible::NoBoundary)
        return unitAt(*end, by, start, end);
    *start = *end = -1;
    return {};
}

int SurfaceAccessible::characterCount() const
{
    return static_cast<int>(surface().m_text.lines().narrowLength());
}

QRect SurfaceAccessible::characterRect(int at) const
{
    const QRect here = surface().positionOfCharacter(position(at));
    const QRect behind = surface().positionOfCharacter(surfaceMoves::nextCharacter(surface().m_text, position(at)));
    const int width = behind.top() == here.top() ? std::abs(behind.left() - here.left()) : here.width();
    return {surface().mapToGlobal(QPoint(std::min(here.left(), behind.left()), here.top())),
            QSize(std::max(width, 1), here.height())};
}

int SurfaceAccessible::offsetAtPoint(const QPoint &point) const
{
    return offset(surface().characterFromPosition(surface().mapFromGlobal(point)));
}

void SurfaceAccessible::scrollToSubstring(int start, int)
{
    const qsizetype line = surface().lineFromCharacter(position(start));
    surface().scrollToLine(line);
}

QString SurfaceAccessible::attributes(int at, int *start, int *end) const
{
    const EditSurface &edit = surface();
    const qsizetype place = position(at);
    constexpr qsizetype reach = 4096; // characters for which the end of a format is looked for
    *start = at;
    *end = characterCount();
    QString attributes;
    edit.m_looks.forEachRun(
        place, std::min(place + reach, edit.m_text.length()), [&](qsizetype from, qsizetype to, const Look &look) {
            if (from != place)
                return;
            *end = offset(to);
            const QColor colour = edit.colourFor(look.colour);
            attributes =
                QStringLiteral("color:rgb(%1,%2,%3);").arg(colour.red()).arg(colour.green()).arg(colour.blue());
            attributes += look.bold ? QStringLiteral("font-weight:bold;") : QString();
            attributes += look.underline ? QStringLiteral("text-underline-style:solid;") : QString();
        });
    qsizetype last = position(*end);
    bool isWrong = false;
    edit.m_marks.forEachAt(place, last, [&](const MarkedRange &mark) {
        const qsizetype behind = mark.start + mark.length;
        if (mark.kind != MarkKind::Error || behind <= place)
            return;
        isWrong = isWrong || mark.start <= place;
        last = std::min(last, mark.start > place ? mark.start : behind);
    });
    *end = offset(last);
    return isWrong ? attributes + QStringLiteral("invalid:true;") : attributes;
}

void SurfaceAccessible::deleteText(int start, int end)
{
    replaceText(start, end, QString());
}

void SurfaceAccessible::insertText(int at, const QString &text)
{
    replaceText(at, at, text);
}

void SurfaceAccessible::replaceText(int start, int end, const QString &text)
{
    if (surface().Locked())
        return;
    const EditSurface::Step step(&surface());
    surface().select(position(start), position(end));
    surface().insertAtCaret(text);
}
