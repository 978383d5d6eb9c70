#include "common/replaceText.h"

#include "common/commonText.h"
#include "common/document.h"

#include <algorithm>

qsizetype placeAfterReplacing(const QString &before, const QString &after, qsizetype place)
{
    const qsizetype start = commonStart(before, after);
    const qsizetype end = commonEnd(before, after, std::min(before.size(), after.size()) - start);
    if (place <= start)
        return place;
    if (place >= before.size() - end)
        return place + after.size() - before.size();
    return std::min(place, after.size() - end);
}

void replaceText(Document &document, const QString &text)
{
    TextSurface &txtEdit = document.txtEdit();
    const QString before = txtEdit.Text();
    if (text == before)
        return;
    const qsizetype start = txtEdit.SelStart();
    const qsizetype end = start + txtEdit.SelLength();
    const qsizetype top = txtEdit.firstVisibleLine();
    document.UndoRedoStep();
    txtEdit.setText(text);
    const qsizetype newStart = placeAfterReplacing(before, text, start);
    txtEdit.setSelStart(newStart);
    txtEdit.setSelLength(std::max<qsizetype>(placeAfterReplacing(before, text, end) - newStart, 0));
    txtEdit.scrollToLine(top);
    document.UndoRedoStep();
    document.ExternalCallColourCode();
}
