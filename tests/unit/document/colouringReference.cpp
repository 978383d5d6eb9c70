#include "unit/document/colouringReference.h"

#include <algorithm>

using namespace reference;

namespace
{
const QString Quote = QStringLiteral("\"");
const QString Blank = QStringLiteral(" ");
const QString CR = QStringLiteral("\r");

QString keyOf(int start, int length)
{
    return QStringLiteral("%1,%2*").arg(start).arg(length);
}
} // namespace

void ColouringReference::RecolourDocument()
{
    CancelColouring = false;
    Nodes.clear();
    prepare();
    if (len(txtEdit.Text()) < 64000 && m_options.ColourCodeSyntax)
        tagPass();
    aspPass();
    if (m_options.ColourCodeHyperlink && len(txtEdit.Text()) < 64000)
        linkPass();
    ending();
}

void ColouringReference::prepare()
{
    if (len(txtEdit.Text()) >= 64000)
        return;
    const int start = txtEdit.SelStart();
    const int length = txtEdit.SelLength();
    attempt([&] { txtEdit.setSelStart(0); });
    attempt([&] { txtEdit.setSelLength(len(txtEdit.Text())); });
    attempt([&] { txtEdit.setSelColor(WindowTextColour); });
    attempt([&] { txtEdit.setSelUnderline(false); });
    attempt([&] { txtEdit.setSelBold(false); });
    attempt([&] { txtEdit.setSelStart(start); });
    attempt([&] { txtEdit.setSelLength(length); });
}

// The rules in one piece, as they are told. NOLINTNEXTLINE(readability-function-size)
void ColouringReference::tagPass()
{
    const QString Text = txtEdit.Text();
    int pos = 0;
    int lt = 0;
    int gt = 0;
    QString tag;
    for (bool first = true;; first = false) {
        // 1
        if (pos >= len(Text) || (pos == 0 && !first))
            return;
        // 2
        DoEvents();
        // 3
        if (CancelColouring)
            return;
        // 4
        attempt([&] { lt = find(Text, QStringLiteral("<"), pos + 1) - 1; });
        attempt([&] { gt = find(Text, QStringLiteral(">"), pos + 1); });
        // 5
        attempt([&] {
            if (find(mid(Text, lt + 1, gt - lt), QStringLiteral("<"), 2) >= 1) {
                if (mid(Text, lt, gt - lt).contains(CR))
                    gt = find(Text, CR, pos + 1);
                else
                    gt = find(Text, Blank, pos + 1);
            }
        });
        // 6
        if (lt == -1 || gt > len(Text))
            return;
        // 7
        attempt([&] { txtEdit.setSelStart(lt); });
        attempt([&] { txtEdit.setSelLength(gt - lt); });
        attempt([&] { txtEdit.setSelColor(m_options.ColourCodeTag); });
        attempt([&] { txtEdit.setSelBold(true); });
        // 8
        if (structurePageVisible)
            attempt([&] { AddStructureNode(lcase(txtEdit.SelText()), lt); });
        // 9
        tag = txtEdit.SelText();
        pos = gt;
        // 10
        if (tag.contains(Blank)) {
            int b = 0;
            attempt([&] { b = find(tag, Blank, 1); });
            attempt([&] { txtEdit.setSelStart(lt + b); });
            attempt([&] { txtEdit.setSelLength((gt - lt) - b - 1); });
            attempt([&] { txtEdit.setSelColor(m_options.ColourCodeAttribute); });
            attempt([&] { txtEdit.setSelBold(false); });
        }
        // 11
        values(tag, lt);
        // 12
        if (tag.contains(QStringLiteral("<!-"))) {
            int c = 0;
            attempt([&] { txtEdit.setSelStart(lt); });
            attempt([&] { c = find(Text, QStringLiteral("-->"), lt + 1); });
            if (c == 0) {
                attempt([&] { txtEdit.setSelLength(gt - lt); });
            } else {
                attempt([&] { txtEdit.setSelLength(c + 2 - lt); });
                pos = c + 2;
            }
            attempt([&] { txtEdit.setSelColor(m_options.ColourCodeComment); });
            attempt([&] { txtEdit.setSelBold(false); });
        }
    }
}

void ColouringReference::values(const QString &tag, int lt)
{
    int s = 1;
    int e = 0;
    int v = 0;
    while (true) {
        // 1
        if (s == len(tag))
            return;
        DoEvents();
        // 2
        attempt([&] { e = find(tag, QStringLiteral("="), s); });
        if (e == 0)
            return;
        // 3
        if (mid(tag, e + 1, 1) == Quote)
            attempt([&] { v = find(tag, Quote, e + 2); });
        else
            attempt([&] { v = find(tag, Blank, e + 2); });
        // 4
        if (v == 0)
            v = len(tag) - 1;
        // 5
        attempt([&] { txtEdit.setSelStart(lt + e); });
        attempt([&] { txtEdit.setSelLength(v - e); });
        attempt([&] { txtEdit.setSelColor(m_options.ColourCodeValue); });
        // 6
        if (s == len(tag) - 1)
            s = len(tag);
        else
            s = v;
    }
}

void ColouringReference::aspPass()
{
    const QString Text = txtEdit.Text();
    int a = 0;
    int b = 1;
    while (true) {
        attempt([&] { a = find(Text, QStringLiteral("<%"), b); });
        attempt([&] { b = find(Text, QStringLiteral("%>"), a); });
        if (a != 0 && b != 0 && b > a) {
            attempt([&] { txtEdit.setSelStart(a - 1); });
            attempt([&] { txtEdit.setSelLength(b - a + 2); });
            attempt([&] { txtEdit.setSelColor(m_options.ColourASPCode); });
            attempt([&] { txtEdit.setSelBold(false); });
        }
        if (a == 0 || b == 0)
            return;
    }
}

void ColouringReference::linkPass()
{
    ColourLinkPrefix(QStringLiteral("www."));
    ColourLinkPrefix(QStringLiteral("http:"));
    ColourLinkPrefix(QStringLiteral("file://"));
    ColourLinkPrefix(QStringLiteral("mailto:"));
    ColourLinkPrefix(QStringLiteral("ftp:"));
    ColourLinkPrefix(QStringLiteral("https:"));
    ColourLinkPrefix(QStringLiteral("news:"));
}

void ColouringReference::ColourLinkPrefix(const QString &prefix)
{
    if (!m_options.ColourCodeHyperlink)
        return;
    const QString Text = txtEdit.Text();
    // 1
    int p = 1;
    while (p <= len(Text) - 1) {
        // 2
        DoEvents();
        if (CancelColouring)
            return;
        // 3
        attempt([&] { p = find(lcase(Text), prefix, p); });
        // 4
        int end = len(Text);
        for (const QString &terminator : {Quote, CR, QStringLiteral("<"), Blank}) {
            const int place = find(Text, terminator, p + 1);
            if (place >= 1 && place < end)
                end = place;
        }
        // 5
        const int n = end - p;
        if (p == 0 || n < 0)
            return;
        // 6
        attempt([&] { txtEdit.setSelStart(p - 1); });
        attempt([&] { txtEdit.setSelLength(n); });
        attempt([&] { txtEdit.setSelColor(m_options.ColourCodeURL); });
        attempt([&] { txtEdit.setSelUnderline(true); });
        // 7
        if (p > len(Text) - 1)
            return;
        p = p + n + 1;
    }
}

void ColouringReference::ending()
{
    if (len(txtEdit.Text()) < 64000) {
        attempt([&] { txtEdit.setSelStart(0); });
        attempt([&] { txtEdit.setSelLength(1); });
        if (txtEdit.SelText() != QStringLiteral("<"))
            attempt([&] { txtEdit.setSelColor(WindowTextColour); });
        return;
    }
    attempt([&] { txtEdit.setSelStart(0); });
    attempt([&] { txtEdit.setSelLength(len(txtEdit.Text())); });
    attempt([&] { txtEdit.setSelColor(WindowTextColour); });
    attempt([&] { txtEdit.setSelUnderline(false); });
}

void ColouringReference::AddStructureNode(const QString &t, int lt)
{
    const int start = txtEdit.SelStart();
    const int length = txtEdit.SelLength();
    if (!t.contains(QStringLiteral("<p ")) && !t.contains(QStringLiteral("<p>")) &&
        !t.contains(QStringLiteral("<div"))) {
        addElement(t, start, length);
        return;
    }
    if (t.contains(QStringLiteral("<p")))
        addParagraph(start, length, lt);
    if (t.contains(QStringLiteral("align=")))
        addAlignment(t, start);
}

void ColouringReference::addElement(const QString &t, int start, int length)
{
    const auto holds = [&t](const char *text) { return t.contains(QLatin1String(text)); };
    QString image = QStringLiteral("Element");
    QString text = t;
    if (holds("<!-")) {
        image = QStringLiteral("Comment");
        text = QStringLiteral("Comment");
    } else if (holds("<b ") || holds("<b>")) {
        image = QStringLiteral("FontBold");
        text = QStringLiteral("Bold");
    } else if (holds("<i ") || holds("<i>")) {
        image = QStringLiteral("FontItalic");
        text = QStringLiteral("Italic");
    } else if (holds("<u ") || holds("<u>")) {
        image = QStringLiteral("FontUnderline");
        text = QStringLiteral("Underline");
    } else if (holds("<h1") || holds("<h2") || holds("<h3") || holds("<h4") || holds("<h5") || holds("<h6")) {
        image = QStringLiteral("Heading");
        text = QStringLiteral("Heading ") + mid(txtEdit.SelText(), 3, 1);
    } else if (holds("<a ") || holds("<a>")) {
        image = QStringLiteral("Hyperlink");
        text = QStringLiteral("Hyperlink");
    } else if (holds("<img ")) {
        image = QStringLiteral("Image");
        text = QStringLiteral("Image");
    } else if (holds("<br ") || holds("<br>")) {
        image = QStringLiteral("LineBreak");
        text = QStringLiteral("Line Break");
    } else if (holds("<hr ") || holds("<hr>")) {
        image = QStringLiteral("HorizontalRule");
        text = QStringLiteral("Horizontal Rule");
    } else if (holds("<form ") || holds("<form>")) {
        image = QStringLiteral("FormObject");
        text = QStringLiteral("Form Field");
    } else if (holds("<table ") || holds("<table>")) {
        image = QStringLiteral("Table");
        text = QStringLiteral("Table");
    }
    addNode(keyOf(start, length), text, image, -1);
}

void ColouringReference::addParagraph(int start, int length, int lt)
{
    const QString Text = txtEdit.Text();
    const int q = find(lcase(Text), QStringLiteral("</p>"), lt + 2);
    const QString upToEnd = mid(Text, 1, q);
    if (upToEnd.contains(QStringLiteral("<p ")) || upToEnd.contains(QStringLiteral("<p>")))
        m_close = q;
    const QString paragraph = QStringLiteral("Paragraph");
    if (m_close < 1)
        addNode(keyOf(start, length), paragraph, paragraph, -1);
    else
        addNode(keyOf(start, m_close - start + 3), paragraph, paragraph, -1);
}

void ColouringReference::addAlignment(const QString &t, int start)
{
    attempt([&] { m_a = mid(t, find(t, QStringLiteral(" align="), 1), 15); });
    QString image;
    QString text;
    if (m_a.contains(QStringLiteral("right"))) {
        image = QStringLiteral("AlignRight");
        text = QStringLiteral("Align Right");
    } else if (m_a.contains(QStringLiteral("center"))) {
        image = QStringLiteral("AlignCentre");
        text = QStringLiteral("Align Center");
    } else if (m_a.contains(QStringLiteral("left"))) {
        image = QStringLiteral("AlignLeft");
        text = QStringLiteral("Align Left");
    } else if (m_a.contains(QStringLiteral("justify"))) {
        image = QStringLiteral("AlignJustify");
        text = QStringLiteral("Align Justify");
    } else {
        return;
    }
    const QString key = keyOf(start + find(t, QStringLiteral(" align="), 1), 6);
    addNode(key, text, image, t.contains(QStringLiteral("<p")) ? static_cast<int>(Nodes.size()) - 1 : -1);
}

void ColouringReference::addNode(const QString &key, const QString &text, const QString &image, int parent)
{
    const bool stands = std::any_of(Nodes.begin(), Nodes.end(), [&](const Node &node) { return node.key == key; });
    if (!stands)
        Nodes.push_back({key, text, image, parent});
}
