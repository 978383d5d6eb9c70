#include "unit/document/indentReference.h"

using namespace reference;

namespace
{
const QString Step = QStringLiteral("    ");
const QString CR = QStringLiteral("\r");
const QString LF = QStringLiteral("\n");
const QString CrLf = QStringLiteral("\r\n");
} // namespace

void IndentReference::IndentText(bool isIndent)
{
    const bool noSelection = txtEdit.SelLength() == 0;
    const int start = txtEdit.SelStart();
    const int length = txtEdit.SelLength();
    if (isIndent)
        indent(noSelection, start, length);
    else
        outdent(noSelection, start, length);
}

void IndentReference::outdent(bool noSelection, int start, int length)
{
    int p = 1;
    bool changed = false;
    // decided: with fewer than four characters ahead of the caret nothing is done
    if (noSelection && start < 4)
        return;
    // 1
    if (noSelection)
        attempt([&] { txtEdit.setSelStart(start - 4); });
    attempt([&] { txtEdit.setSelLength(4); });
    // 2
    if (mid(txtEdit.SelText(), 1, 4) != Step) {
        attempt([&] { txtEdit.setSelLength(0); });
        attempt([&] { txtEdit.setSelStart(start); });
        return;
    }
    // 3
    attempt([&] { txtEdit.setSelText(mid(txtEdit.SelText(), 5, txtEdit.SelLength() - 4)); });
    attempt([&] { txtEdit.setSelStart(start); });
    attempt([&] { txtEdit.setSelLength(length - 4); });
    // 4
    length = length - 4;
    changed = true;
    // 5
    if (noSelection) {
        attempt([&] { txtEdit.setSelStart(start - 4); });
        tookFocus = true;
        return;
    }
    // 6
    while (true) {
        attempt([&] { p = find(txtEdit.SelText(), LF + Step, p); });
        if (p == 0)
            break;
        attempt([&] {
            txtEdit.setSelText(mid(txtEdit.SelText(), 1, p) + mid(txtEdit.SelText(), p + 5, txtEdit.SelLength() - 4));
        });
        attempt([&] { txtEdit.setSelStart(start); });
        length = length - 4;
        attempt([&] { txtEdit.setSelLength(length + 4); });
        p = p + 1;
    }
    // 7
    if (changed)
        attempt([&] { txtEdit.setSelLength(txtEdit.SelLength() - 4); });
    recordAndCollapse();
}

void IndentReference::indent(bool noSelection, int start, int length)
{
    int p = 1;
    // 1
    attempt([&] { txtEdit.setSelText(Step + txtEdit.SelText()); });
    // 2
    if (noSelection) {
        attempt([&] { txtEdit.setSelStart(start + 4); });
        return;
    }
    // 3
    attempt([&] { txtEdit.setSelStart(start); });
    attempt([&] { txtEdit.setSelLength(length + 4); });
    // 4
    while (true) {
        attempt([&] { p = find(txtEdit.SelText(), LF, p); });
        if (p == 0)
            break;
        attempt([&] {
            const QString selected = txtEdit.SelText();
            txtEdit.setSelText(mid(selected, 1, p) + Step + mid(selected, p + 1, len(selected) - p));
        });
        attempt([&] { txtEdit.setSelStart(start); });
        length = length + 4;
        attempt([&] { txtEdit.setSelLength(length); });
        p = p + 1;
    }
    // 5
    attempt([&] { txtEdit.setSelLength(txtEdit.SelLength() + 8); });
    recordAndCollapse();
}

void IndentReference::recordAndCollapse()
{
    UndoRedoChange();
    attempt([&] { txtEdit.setSelLength(0); });
}

void IndentReference::UndoRedoChange()
{
    snapshots.push_back({txtEdit.Text(), txtEdit.SelStart(), txtEdit.SelLength()});
}

IndentReference::Outcome IndentReference::OptimiseSyntax(AtLastLine rule, int mostLines)
{
    int pos = 0;
    while (pos < len(txtEdit.Text())) {
        ++lines;
        if (lines > mostLines)
            return Outcome::GaveUp;
        if (!optimiseLine(pos, rule))
            break;
    }
    return Outcome::Ended;
}

bool IndentReference::optimiseLine(int &pos, AtLastLine rule)
{
    int lineStart = 1;
    int lineEnd = 1;
    // 1
    if (pos != 0) {
        if (rule == AtLastLine::Ends && find(txtEdit.Text(), CrLf, pos) == 0)
            return false;
        attempt([&] { lineStart = find(txtEdit.Text(), CrLf, pos) + 1; });
    } else {
        lineStart = 0;
    }
    // 2
    attempt([&] { lineEnd = find(txtEdit.Text(), CrLf, lineStart + 1) - 1; });
    // 3
    if (lineEnd == -1 && lineStart != 0) {
        lineEnd = len(txtEdit.Text());
        pos = len(txtEdit.Text());
    }
    // 4
    attempt([&] { txtEdit.setSelStart(lineStart); });
    attempt([&] { txtEdit.setSelLength(lineEnd - lineStart); });
    // 5
    if (txtEdit.Text().isEmpty()) {
        pos = txtEdit.SelStart() + txtEdit.SelLength() + 1;
        return true;
    }
    // 6
    const QString l = lcase(txtEdit.SelText());
    for (const char *name : {"head", "title", "body", "ul", "ol", "table", "td", "tr"}) {
        if (l.contains(QLatin1Char('<') + QLatin1String(name))) {
            // 7
            indentContents(QStringLiteral("</") + QLatin1String(name), lineEnd, pos);
            return true;
        }
    }
    // 8
    pos = txtEdit.SelStart() + txtEdit.SelLength() + 1;
    return true;
}

void IndentReference::indentContents(const QString &closing, int lineEnd, int &pos)
{
    // decided: without a next line nothing is indented
    if (find(txtEdit.Text(), CR, lineEnd + 1) == 0) {
        pos = len(txtEdit.Text());
        return;
    }
    // 7.1
    attempt([&] { txtEdit.setSelStart(find(txtEdit.Text(), CR, lineEnd + 1) + 1); });
    // 7.2
    attempt([&] {
        txtEdit.setSelLength(find(lcase(txtEdit.Text()), closing, txtEdit.SelStart()) - (txtEdit.SelStart() + 2));
    });
    // 7.3
    if (txtEdit.SelLength() != 0) {
        if (findBack(txtEdit.SelText(), Step, txtEdit.SelLength()) >= 1)
            attempt([&] { txtEdit.setSelLength(findBack(txtEdit.SelText(), CR, txtEdit.SelLength())); });
        IndentText(true);
    }
    // 7.4
    pos = txtEdit.SelStart() + txtEdit.SelLength();
}
