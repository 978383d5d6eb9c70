#include "common/replaceText.h"

#include "common/document.h"

#include <algorithm>

namespace
{
qsizetype commonStart(QStringView a, QStringView b)
{
    return std::mismatch(a.begin(), a.begin() + std::min(a.size(), b.size()), b.begin()).first - a.begin();
}

qsizetype commonEnd(QStringView a, QStringView b, qsizetype behind)
{
    const qsizetype most = std::min(a.size(), b.size()) - behind;
    qsizetype length = 0;
    while (length < most && a[a.size() - 1 - length] == b[b.size() - 1 - length])
        ++length;
    return length;
}
} // namespace

qsizetype placeAfterReplacing(const QString &before, const QString &after, qsizetype place)
{
    const qsizetype start = commonStart(before, after);
    const qsizetype end = commonEnd(before, after, start);
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
