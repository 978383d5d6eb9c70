#include "surface/lineLayouts.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>

namespace
{
constexpr qsizetype longestInOne = 2048;
constexpr qsizetype pieceLength = 1024;
constexpr qsizetype lookBack = 32;    // characters in which the start of what belongs together is looked for
constexpr qsizetype mostMarks = 64;   // that are drawn on a letter; writing has a few
constexpr qreal narrowest = 256;      // pixels of a piece, whose characters may all have no width
constexpr qreal unlimited = 16000000; // pixels: a layout counts in 64ths of them, with 32 bits

/// Characters that a layout would take for its own marks or for the end of a row are drawn as a sign.
bool isDrawnAsSign(QChar c)
{
    switch (c.unicode()) {
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
    case QChar::ObjectReplacementCharacter:
    case 0xFDD0:
    case 0xFDD1:
        return true;
    default:
        return false;
    }
}

/// The sign that stands for these, of those that mean a line's end. One of another font would have that looked for at
/// each of them, which takes longer than all the rest.
QChar signOf(const QFont &font)
{
    const QRawFont own = QRawFont::fromFont(font); // which knows no other fonts' signs
    for (const QChar sign : {QChar(u'\u2424'), QChar(u'\u21B5')}) {
        if (own.supportsCharacter(sign))
            return sign;
    }
    return QChar(0xB6); // as every font for Latin text has it
}

/// Marks that nobody could see any more are drawn as signs, each with a width of its own, so that a view holds a number
/// of them that can be laid out.
void replaceSurplusMarks(QString &text, QChar sign)
{
    qsizetype marks = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t code = pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        marks = QChar::isMark(code) ? marks + 1 : 0;
        if (marks > mostMarks)
            std::fill_n(text.begin() + i, pair ? 2 : 1, sign);
        i += pair ? 1 : 0;
    }
}

/// Whether a text is of letters that the shaper does not put together, put in another order or leave out, unless the
/// font has signs of its own for a number of them.
bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        const char16_t code = c.unicode();
        const bool isControl = (code < u' ' && code != u'\t') || (code >= 0x7F && code < 0xA0);
        return code < 0x300 && !isControl && code != QChar::SoftHyphen;
    });
}

/// The glyphs of a text and their places.
std::pair<QList<quint32>, QList<QPointF>> glyphsOf(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine().setLineWidth(unlimited);
    layout.endLayout();
    std::pair<QList<quint32>, QList<QPointF>> glyphs;
    for (const QGlyphRun &run : layout.glyphRuns()) {
        glyphs.first += run.glyphIndexes();
        glyphs.second += run.positions();
    }
    return glyphs;
}

/// The same font without the shaper, which takes three quarters of the time that a line of code takes; the font itself
/// if it joins letters or signs, as some for code do.
QFont fontOfPlainText(const QFont &font)
{
    const QString joined =
        QStringLiteral("fi fl ffi www <!-- --> </ /> <> -> => == === != !== <= >= :: ++ -- ** && || // "
                       "/* */ .. ... ?. ?? ## #{ ${ {{ }} [] () |> <| ~~ %% ;; \\\\ 0xF 0x0 AV To");
    QFont plain = font;
    plain.setStyleStrategy(static_cast<QFont::StyleStrategy>(font.styleStrategy() | QFont::PreferNoShaping));
    return glyphsOf(joined, font) == glyphsOf(joined, plain) ? plain : font;
}

MeasuredLetters lettersOf(const QString &text)
{
    MeasuredLetters letters;
    for (const QChar c : text) {
        const char16_t code = c.unicode();
        if (code > u' ' && code < letters.size())
            letters.set(code);
        else if (code != u' ' && code != u'\t')
            letters.set(0);
    }
    return letters;
}
} // namespace

int LinePiece::inLayout(qsizetype place) const
{
    const bool behind = preeditAt >= 0 && place > preeditAt;
    return static_cast<int>(place + (behind ? layout->preeditAreaText().size() : 0));
}

qsizetype LinePiece::fromLayout(int place) const
{
    if (preeditAt < 0 || place <= preeditAt)
        return place;
    return std::max(place - layout->preeditAreaText().size(), preeditAt);
}

LineLayouts::LineLayouts(const SurfaceText &text, const FormatRuns &looks, const TextMarks &marks,
                         std::function<QColor(ColourValue)> colour)
    : m_text(text), m_looks(looks), m_marks(marks), m_colour(std::move(colour))
{
    setStyle(m_style);
}

void LineLayouts::setStyle(const LayoutStyle &style)
{
    if (style.font != m_style.font) {
        m_plainFont.reset();
        m_sign = {};
        m_fits = {};
    }
    m_style = style;
    m_advance = std::max(QFontMetricsF(style.font).horizontalAdvance(u'x'), 1.0);
    m_columns = std::max(static_cast<qsizetype>(style.wrapWidth / m_advance), qsizetype(1));
    QTextLayout empty(QString(), style.font);
    empty.beginLayout();
    QTextLine row = empty.createLine();
    row.setLineWidth(unlimited);
    empty.endLayout();
    m_rowHeight = std::max(row.height(), 1.0);
    forgetAll();
}

int LineLayouts::pieceCount(qsizetype line) const
{
    const qsizetype length = m_text.lineLength(line);
    return length <= longestInOne ? 1 : static_cast<int>((length + pieceLength / 2) / pieceLength);
}

qsizetype LineLayouts::pieceStart(qsizetype line, int piece) const
{
    if (piece <= 0)
        return 0;
    if (piece >= pieceCount(line))
        return m_text.lineLength(line);
    // Characters that are drawn as one stay together, unless they are more than anybody writes.
    const qsizetype wanted = piece * pieceLength;
    const QString around = m_text.mid(m_text.lineStart(line) + wanted - lookBack, lookBack + 2);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, around);
    finder.setPosition(lookBack);
    const qsizetype found = finder.isAtBoundary() ? lookBack : finder.toPreviousBoundary();
    const bool cutsPair = around[lookBack].isLowSurrogate() && around[lookBack - 1].isHighSurrogate();
    return found > 0 ? wanted - lookBack + found : wanted - (cutsPair ? 1 : 0);
}

int LineLayouts::pieceOf(qsizetype line, qsizetype column) const
{
    int piece = std::clamp(static_cast<int>(column / pieceLength), 0, pieceCount(line) - 1);
    while (piece + 1 < pieceCount(line) && pieceStart(line, piece + 1) <= column)
        ++piece;
    while (piece > 0 && pieceStart(line, piece) > column)
        --piece;
    return piece;
}

const LinePiece &LineLayouts::piece(qsizetype line, int piece)
{
    Line &kept = m_lines[line];
    const auto found = kept.pieces.find(piece);
    if (found != kept.pieces.end())
        return found->second;
    ++m_laidOut;
    const LinePiece &made = kept.pieces.emplace(piece, laidOut(line, piece)).first->second;
    kept.sizes[piece] = {made.length, made.width, made.rowCount()};
    if (kept.advance <= 0 && made.length > 0)
        kept.advance = made.width / static_cast<qreal>(made.length);
    return made;
}

const QFont &LineLayouts::fontFor(const QString &text) const
{
    if (!isPlain(text))
        return m_style.font;
    if (!m_plainFont)
        m_plainFont = fontOfPlainText(m_style.font);
    return *m_plainFont;
}

/// What is drawn of a text behind its first `skipped` characters.
QString LineLayouts::drawnText(QString text, qsizetype skipped) const
{
    const bool hasSigns = std::any_of(text.cbegin(), text.cend(), isDrawnAsSign);
    const bool hasMarks =
        std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSurrogate() || c.isMark(); });
    if ((hasSigns || hasMarks) && m_sign.isNull())
        m_sign = signOf(m_style.font);
    if (hasSigns)
        std::replace_if(text.begin(), text.end(), isDrawnAsSign, m_sign);
    if (hasMarks)
        replaceSurplusMarks(text, m_sign);
    return text.mid(skipped);
}

LinePiece LineLayouts::laidOut(qsizetype line, int number) const
{
    LinePiece piece;
    piece.start = pieceStart(line, number);
    piece.length = pieceStart(line, number + 1) - piece.start;
    const qsizetype before = std::min(piece.start, mostMarks);
    const QString text =
        drawnText(m_text.mid(m_text.lineStart(line) + piece.start - before, before + piece.length), before);
    piece.letters = lettersOf(text);
    piece.layout = std::make_unique<QTextLayout>(text, fontFor(text));
    QTextLayout &layout = *piece.layout;
    layout.setCacheEnabled(true);
    QTextOption option;
    option.setTabStopDistance(m_style.tabDistance);
    option.setWrapMode(wraps() ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    // A row that is as long as its line has no right side to stand at.
    const bool atRight = wraps() && text.isRightToLeft();
    option.setAlignment((atRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
    layout.setTextOption(option);
    if (m_preedit.line == line && pieceOf(line, m_preedit.column) == number) {
        piece.preeditAt = m_preedit.column - piece.start;
        layout.setPreeditArea(static_cast<int>(piece.preeditAt), m_preedit.text);
    }
    layout.setFormats(formatsOf(line, piece));
    layout.beginLayout();
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLineWidth(wraps() ? m_style.wrapWidth : unlimited);
        row.setPosition({0, piece.height});
        piece.height += row.height();
        const int end = row.textStart() + row.textLength();
        piece.width =
            std::max({piece.width, row.naturalTextWidth(), row.cursorToX(end), row.cursorToX(row.textStart())});
    }
    layout.endLayout();
    if (piece.length > longestInOne / 4 && pieceCount(line) > 1)
        piece.width = std::max(piece.width, narrowest);
    return piece;
}

QList<QTextLayout::FormatRange> LineLayouts::formatsOf(qsizetype line, const LinePiece &piece) const
{
    QList<QTextLayout::FormatRange> formats;
    const qsizetype first = m_text.lineStart(line) + piece.start;
    m_looks.forEachRun(first, first + piece.length, [&](qsizetype from, qsizetype to, const Look &look) {
        if (look == Look())
            return;
        const int start = piece.inLayout(from - first + 1) - 1; // behind composed text, if it starts there
        formats.append({start, piece.inLayout(to - first) - start, formatOf(look)});
    });
    m_marks.forEachAt(first, first + piece.length, [&](const MarkedRange &mark) {
        const qsizetype last = mark.start + mark.length - 1;
        if (mark.kind != MarkKind::Colour || mark.length == 0 || last < first || last >= first + piece.length)
            return;
        QTextCharFormat format;
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(squareRoom());
        formats.append({piece.inLayout(last - first), 1, format});
    });
    for (QTextLayout::FormatRange composed : piece.preeditAt < 0 ? decltype(formats)() : m_preedit.formats) {
        composed.start += static_cast<int>(piece.preeditAt);
        formats.append(composed);
    }
    return formats;
}

/// A page has few looks, and each of them many times.
const QTextCharFormat &LineLayouts::formatOf(const Look &look) const
{
    const auto found =
        std::find_if(m_formats.begin(), m_formats.end(), [&](const auto &known) { return known.first == look; });
    if (found != m_formats.end())
        return found->second;
    constexpr size_t most = 32; // that are gone through sooner than a format is made
    if (m_formats.size() >= most)
        m_formats.clear();
    QTextCharFormat format;
    if (look.colour != WindowTextColour)
        format.setForeground(m_colour(look.colour));
    if (look.bold)
        format.setFontWeight(QFont::Bold);
    if (look.underline)
        format.setFontUnderline(true);
    return m_formats.emplace_back(look, format).second;
}

const LineLayouts::Line *LineLayouts::known(qsizetype line) const
{
    const auto found = m_lines.find(line);
    return found == m_lines.end() ? nullptr : &found->second;
}

qreal LineLayouts::pieceLeft(qsizetype line, int piece) const
{
    const Line *kept = known(line);
    const qreal advance = kept && kept->advance > 0 ? kept->advance : m_advance;
    qreal left = piece == 0 ? 0 : static_cast<qreal>(pieceStart(line, piece)) * advance;
    if (kept) {
        for (auto i = kept->sizes.begin(); i != kept->sizes.lower_bound(piece); ++i)
            left += i->second.width - static_cast<qreal>(i->second.length) * advance;
    }
    return left;
}

int LineLayouts::pieceAtPixel(qsizetype line, qreal x)
{
    const int last = pieceCount(line) - 1;
    if (last == 0)
        return 0;
    piece(line, 0); // which tells how wide a character is
    const qreal advance = std::max(known(line)->advance, 0.1);
    int number = std::clamp(static_cast<int>(x / advance / pieceLength), 0, last);
    while (number > 0 && pieceLeft(line, number) > x)
        --number;
    while (number < last && pieceLeft(line, number) + piece(line, number).width <= x)
        ++number;
    return number;
}

qreal LineLayouts::lineWidth(qsizetype line) const
{
    return pieceLeft(line, pieceCount(line));
}

qreal LineLayouts::heightOf(qsizetype line)
{
    if (pieceCount(line) == 1)
        return piece(line, 0).height;
    qreal height = m_rowHeight;
    if (const Line *kept = known(line)) {
        for (const auto &[number, piece] : kept->pieces)
            height = std::max(height, piece.height);
    }
    return height;
}

qreal LineLayouts::reachOf(qsizetype line, qreal ratio) const
{
    const Line *kept = known(line);
    if (!kept || pieceCount(line) > 1 || ratio != std::floor(ratio)) // between whole ratios it depends on the row
        return farthestReach();
    if (m_fits.ratio != ratio)
        m_fits = {ratio, {}, {}};
    if (kept->fit.ratio != ratio) {
        kept->fit = {ratio, std::all_of(kept->pieces.begin(), kept->pieces.end(), [this](const auto &piece) {
                         return piece.second.preeditAt < 0 && fit(piece.second.letters);
                     })};
    }
    return kept->fit.keepsIn ? 0 : farthestReach();
}

/// Whether no letter is higher than a row has room for, in either weight.
bool LineLayouts::fit(const MeasuredLetters &letters) const
{
    if (letters[0])
        return false;
    const MeasuredLetters asked = letters & ~m_fits.known;
    for (size_t i = 1; asked.any() && i < asked.size(); ++i) {
        if (!asked[i])
            continue;
        m_fits.known.set(i);
        QFont bold = m_style.font;
        bold.setBold(true);
        m_fits.fitting.set(i, fits(QChar(static_cast<char16_t>(i)), m_style.font) &&
                                  fits(QChar(static_cast<char16_t>(i)), bold));
    }
    return (letters & ~m_fits.fitting).none();
}

bool LineLayouts::fits(QChar letter, const QFont &font) const
{
    const QFontMetricsF metrics(font);
    const QRectF ink = metrics.boundingRect(letter);
    const qreal base = std::round(metrics.ascent() * m_fits.ratio); // where letters stand, in the screen's pixels
    return std::ceil(-ink.top() * m_fits.ratio) <= base &&
           base + std::ceil(ink.bottom() * m_fits.ratio) <= m_rowHeight * m_fits.ratio;
}

int LineLayouts::estimatedRows(qsizetype length) const
{
    if (length <= std::min(m_columns, longestInOne))
        return 1; // as most lines are, of which there may be a hundred thousand to ask for
    const auto rowsOfPiece = [this](qsizetype piece) { return (piece + m_columns - 1) / m_columns; };
    if (length <= longestInOne)
        return static_cast<int>(rowsOfPiece(length));
    return static_cast<int>((length + pieceLength / 2) / pieceLength * rowsOfPiece(pieceLength));
}

int LineLayouts::rowsBefore(qsizetype line, int piece) const
{
    const int count = pieceCount(line);
    const int each = estimatedRows(count == 1 ? m_text.lineLength(line) : pieceLength);
    int rows = piece * each;
    if (const Line *kept = known(line)) {
        for (auto i = kept->sizes.begin(); i != kept->sizes.lower_bound(piece); ++i)
            rows += i->second.rows - each;
    }
    return rows;
}

int LineLayouts::rowsOf(qsizetype line) const
{
    return rowsBefore(line, pieceCount(line));
}

void LineLayouts::forgetAll()
{
    ++m_forgotten;
    m_formats.clear();
    m_lines.clear();
}

void LineLayouts::replaceLines(qsizetype line, qsizetype removed, qsizetype added)
{
    ++m_forgotten;
    if (removed == added) { // as nearly every key does it
        for (qsizetype i = line; i < line + removed; ++i)
            m_lines.erase(i);
        return;
    }
    std::unordered_map<qsizetype, Line> kept;
    for (auto &[number, layouts] : m_lines) {
        if (number < line)
            kept.emplace(number, std::move(layouts));
        else if (number >= line + removed)
            kept.emplace(number + added - removed, std::move(layouts));
    }
    m_lines.swap(kept);
}

bool LineLayouts::forgetStretches(const std::vector<TextStretch> &stretches)
{
    const size_t forgotten = std::erase_if(m_lines, [&](const auto &line) {
        const qsizetype start = m_text.lineStart(line.first);
        const qsizetype end = m_text.lineEnd(line.first);
        const auto first = std::partition_point(stretches.begin(), stretches.end(),
                                                [&](const TextStretch &part) { return part.to <= start; });
        return first != stretches.end() && first->from < end;
    });
    m_forgotten += forgotten;
    return forgotten > 0;
}

void LineLayouts::keepOnly(qsizetype firstLine, qsizetype lastLine)
{
    std::erase_if(m_lines, [&](const auto &line) { return line.first < firstLine || line.first > lastLine; });
}

void LineLayouts::setPreedit(const Preedit &preedit)
{
    ++m_forgotten;
    m_lines.erase(m_preedit.line);
    m_preedit = preedit;
    m_lines.erase(m_preedit.line);
}
