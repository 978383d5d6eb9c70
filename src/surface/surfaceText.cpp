#include "surface/surfaceText.h"

#include "common/text.h"

#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

namespace
{
constexpr QChar mark = u'\u2424'; // a sign for a line end: found in most fonts, and hardly in any page

bool isHeldByMark(QChar c)
{
    switch (c.unicode()) {
    case mark.unicode():
    case QChar::LineSeparator: // would start a row
    case QChar::ParagraphSeparator:
    case 0xFDD0: // the document's frame marks
    case 0xFDD1:
    case QChar::ObjectReplacementCharacter: // would be an object without a picture
        return true;
    default:
        return false;
    }
}

qsizetype lengthOfRun(QStringView text)
{
    if (isHeldByMark(text[0])) // a run of one and the same character
        return std::find_if(text.begin(), text.end(), [&](QChar c) { return c != text[0]; }) - text.begin();
    return std::find_if(text.begin(), text.end(), isHeldByMark) - text.begin();
}
} // namespace

bool SurfaceText::needsCare(QStringView text)
{
    return std::any_of(text.begin(), text.end(), isHeldByMark);
}

void SurfaceText::load(const QString &text)
{
    const QScopedValueRollback<bool> loading(m_loading, true);
    m_lines.reset(text);
    m_text.reset(text);
    if (!needsCare(text)) {
        m_document->setPlainText(text);
        return;
    }
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    m_document->clear();
    insert(cursor, text, QTextCharFormat());
    cursor.endEditBlock();
}

void SurfaceText::insert(QTextCursor &cursor, const QString &text, const QTextCharFormat &format)
{
    QTextCharFormat plain = format;
    plain.clearProperty(HiddenCharacterProperty);
    cursor.beginEditBlock();
    for (QStringView rest = text; !rest.isEmpty();) {
        const QStringView run = rest.first(lengthOfRun(rest));
        if (isHeldByMark(run[0])) {
            QTextCharFormat held = plain;
            held.setProperty(HiddenCharacterProperty, int(run[0].unicode()));
            cursor.insertText(QString(run.size(), mark), held);
        } else {
            cursor.insertText(run.toString(), plain);
        }
        rest = rest.mid(run.size());
    }
    cursor.endEditBlock();
}

bool SurfaceText::follow(int from, int removed, int added)
{
    if (m_loading)
        return false;
    // The document may count its closing separator in. What lies behind the change is the same before and after it.
    const auto before = static_cast<int>(m_lines.narrowLength());
    const int after = m_document->characterCount() - 1;
    const int behind =
        std::clamp(std::min(before - from - removed, after - from - added), 0, std::min(before, after) - from);
    const qsizetype start = m_lines.toWide(from);
    const qsizetype gone = m_lines.toWide(before - behind) - start;
    const QString inserted = documentText(from, after - behind);
    m_lines.replace(start, gone, inserted);
    m_text.replace(start, gone, inserted);
    return true;
}

QString SurfaceText::documentText(int from, int to) const
{
    QTextCursor cursor(m_document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    const QString held = cursor.selectedText();
    QString text;
    text.reserve(held.size());
    for (qsizetype i = 0; i < held.size(); ++i) {
        if (held[i] == QChar::ParagraphSeparator)
            text += QLatin1String("\r\n");
        else
            text += held[i] == mark ? hiddenCharacter(from + static_cast<int>(i)) : held[i];
    }
    return text;
}

QChar SurfaceText::hiddenCharacter(int documentPosition) const
{
    QTextCursor cursor(m_document);
    cursor.setPosition(documentPosition + 1); // a cursor has the format of the character in front of it
    const int hidden = cursor.charFormat().intProperty(HiddenCharacterProperty);
    return hidden ? QChar(hidden) : mark;
}
