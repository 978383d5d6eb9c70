#include "document/colourSquares.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "document/colourPlaces.h"
#include "document/lineHands.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/services.h"
#include "surface/editSurface.h"

namespace
{
QList<ColourPlace> placesIn(const Document &document)
{
    const CommentSigns kind = commentSignsAt({}, 0, document.DocSavePath);
    if (kind == CommentSigns::Script)
        return {};
    return colourPlaces(document.txtEdit().Text(), kind == CommentSigns::Css);
}

void changeColour(const ProgramContext &context, Document &document, const ColourPlace &place)
{
    TextSurface &edit = document.txtEdit();
    if (edit.Locked())
        return;
    const QString old = edit.textPart(place.start, place.length);
    const std::optional<ColourValue> chosen = context.services.commonDialogs.showColour(place.colour);
    if (!chosen || edit.textPart(place.start, place.length) != old)
        return;
    edit.setSelStart(place.start);
    edit.setSelLength(place.length);
    edit.setSelText(recoloured(old, *chosen));
    document.UndoRedoChange();
}
} // namespace

ColourSquares::ColourSquares(Document &document, EditSurface &edit, ProgramContext &context)
    : m_document(document),
      m_edit(edit),
      m_context(context),
      m_afterChanges(
          edit, [this] { return isWanted(); }, [this] { show(); })
{
}

/// What was shown before the rule went is taken back.
bool ColourSquares::isWanted() const
{
    return m_context.state.habits.HandsColours || m_shown;
}

void ColourSquares::show()
{
    if (!isWanted())
        return;
    const bool wanted = m_context.state.habits.HandsColours;
    QList<MarkedRange> marks;
    if (wanted)
        for (const ColourPlace &place : placesIn(m_document))
            marks.append({place.start, place.length, MarkKind::Colour, {}, place.colour});
    m_shown = wanted;
    m_edit.setMarkedRanges(MarkOwner::Colours, marks);
}

void ColourSquares::click(const MarkedRange &square)
{
    if (square.colour)
        changeColour(m_context, m_document, {square.start, square.length, *square.colour});
}

void ChangeColourAtCaret(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    const qsizetype caret = document->txtEdit().SelStart();
    for (const ColourPlace &place : placesIn(*document))
        if (place.start <= caret && caret <= place.start + place.length) {
            changeColour(context, *document, place);
            return;
        }
}
