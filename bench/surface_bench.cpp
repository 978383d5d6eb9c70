#include "common/pageCharset.h"
#include "figures.h"
#include "pages.h"
#include "surface/editSurface.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>

namespace
{
constexpr qsizetype colouredSize = 63'900;
constexpr int formatCount = 6748; // over one for all
constexpr qsizetype largeSize = 1'000'000;
constexpr qsizetype hugeSize = 10'000'000;
constexpr quint32 seed = 7;
constexpr int runs = 9;
constexpr double milli = 1e3; // of a time in seconds
constexpr double micro = 1e6;

void settle()
{
    for (int i = 0; i < 3; ++i) // the display settles by events that events post
        QApplication::processEvents();
}

void show(EditSurface &surface)
{
    surface.resize(900, 700);
    surface.show();
    surface.activateWindow();
    surface.setFocus();
    settle();
}

void typeLetter(EditSurface &surface)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QApplication::sendEvent(&surface, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QApplication::sendEvent(&surface, &release);
    QApplication::processEvents(); // paints
}

void mapPositions(Figures &figures)
{
    EditSurface surface;
    surface.setText(page(hugeSize, seed));
    show(surface);
    QRandomGenerator random(seed);
    std::vector<qsizetype> places(100'000);
    for (qsizetype &place : places)
        place = random.bounded(static_cast<int>(hugeSize));
    LineIndex index;
    index.reset(surface.Text());
    qsizetype sum = 0;
    const auto perPlace = [&](const std::function<void(qsizetype)> &map) {
        return medianTime(runs, [&] { std::for_each(places.begin(), places.end(), map); }) * micro /
               static_cast<double>(places.size());
    };
    figures.add(QStringLiteral("position to the document's counting, 10 MB"),
                perPlace([&](qsizetype place) { sum += index.toNarrow(place); }), QStringLiteral("us"), 0.5);
    figures.add(QStringLiteral("position from the document's counting, 10 MB"),
                perPlace([&](qsizetype place) { sum += index.toWide(place); }), QStringLiteral("us"), 0.5);
    figures.add(QStringLiteral("line from character, 10 MB"),
                perPlace([&](qsizetype place) { sum += surface.lineFromCharacter(place); }), QStringLiteral("us"), 0.5);
    figures.add(QStringLiteral("reading SelStart, 10 MB"), perPlace([&](qsizetype) { sum += surface.SelStart(); }),
                QStringLiteral("us"));
    figures.add(QStringLiteral("Text of an unchanged document, 10 MB"),
                perPlace([&](qsizetype) { sum += surface.Text().size(); }), QStringLiteral("us"), 0.5);
    if (sum == 0)
        std::puts("nothing was mapped");
}

void setting(Figures &figures, const QString &name, qsizetype size, double limit)
{
    EditSurface surface;
    show(surface);
    const QString text = page(size, seed);
    const QString other = page(size, seed + 1);
    bool first = true;
    const double time = medianTime(
        runs,
        [&] {
            surface.setText(first ? text : other);
            settle();
        },
        [&] { first = !first; });
    figures.add(name, time * milli, QStringLiteral("ms"), limit);
}

/// Letters typed at the start of the line at `place` and of lines behind it, a run in each, as a user writes who goes
/// on to the next line before the line leaves the window.
void typing(Figures &figures, const QString &name, const QString &text, qsizetype place, double limit,
            bool wrapped = false)
{
    EditSurface surface;
    surface.setWrapToWindow(wrapped);
    surface.setLineNumbers(true);
    surface.setText(text);
    show(surface);
    constexpr int letters = 30;
    qsizetype line = surface.lineFromCharacter(place);
    const auto nextLine = [&] {
        surface.setSelStart(surface.characterFromLine(std::min(++line, surface.lineCount() - 1)).value_or(0));
        settle();
    };
    const auto measure = [&](const QString &figure, const std::function<void()> &afterKey) {
        const auto typeLine = [&] {
            for (int i = 0; i < letters; ++i) {
                typeLetter(surface);
                afterKey();
            }
        };
        figures.add(figure, medianTime(runs, typeLine, nextLine) * milli / letters, QStringLiteral("ms"), limit);
    };
    measure(name, [] {});
    qsizetype read = 0;
    measure(name + QStringLiteral(", and Text read"), [&] { read += surface.Text().size(); });
    if (read == 0)
        std::puts("nothing was read");
}

QList<FormatRange> manyRanges(qsizetype size, int count, quint32 with)
{
    QRandomGenerator random(with);
    QList<FormatRange> ranges{{0, size, {WindowTextColour, false, false}}};
    const qsizetype step = size / count;
    for (int i = 0; i < count; ++i) {
        const TextFormat format{
            static_cast<ColourValue>(random.bounded(3)) * 0x40U + 0x80U, random.bounded(2) == 1, {}};
        ranges.append({i * step, 1 + random.bounded(static_cast<int>(step)), format});
    }
    return ranges;
}

void colour(Figures &figures)
{
    EditSurface surface;
    surface.setText(page(colouredSize, seed));
    show(surface);
    const auto layFormats = [&](const QList<FormatRange> &ranges) {
        surface.setPaintingHeld(true);
        surface.setFormats(ranges);
        surface.setPaintingHeld(false);
        settle();
    };
    const QList<FormatRange> ranges = manyRanges(colouredSize, formatCount, 1);
    const double fresh = medianTime(
        runs, [&] { layFormats(ranges); },
        [&] {
            surface.setText(page(colouredSize, seed));
            settle();
        });
    figures.add(QStringLiteral("6,749 formats over 63,900 plain characters, painted"), fresh * milli,
                QStringLiteral("ms"), 3);
    quint32 with = 1;
    QList<FormatRange> others;
    const double anew = medianTime(
        runs, [&] { layFormats(others); }, [&] { others = manyRanges(colouredSize, formatCount, ++with); });
    figures.add(QStringLiteral("6,749 other formats over those"), anew * milli, QStringLiteral("ms"), 3);
    const QList<FormatRange> again = manyRanges(colouredSize, formatCount, with);
    const double same = medianTime(runs, [&] { layFormats(again); });
    figures.add(QStringLiteral("the same 6,749 formats once more"), same * milli, QStringLiteral("ms"), 3);
    typeLetter(surface);
    const double key = medianTime(runs, [&] { typeLetter(surface); });
    figures.add(QStringLiteral("a typed letter, painted, among 6,749 formats"), key * milli, QStringLiteral("ms"), 0.6);
}

double memoryPerCharacter(qsizetype characters)
{
    const double memory = printedByChild({QStringLiteral("--surface-memory"), QString::number(characters)});
    return memory / static_cast<double>(characters);
}
} // namespace

int printSurfaceMemory(qsizetype characters)
{
    EditSurface surface;
    surface.setText(page(2000, seed));
    show(surface);
    const double before = memoryInUse();
    surface.setText(page(characters, seed)); // whose string the surface keeps, so that it counts
    settle();
    std::printf("%.0f\n", memoryInUse() - before);
    return surface.Text().size() == characters ? 0 : 1;
}

void surfaceMapping(Figures &figures)
{
    mapPositions(figures);
}

void surfaceSetting(Figures &figures)
{
    setting(figures, QStringLiteral("setting Text, 10 MB"), hugeSize, 900);
    setting(figures, QStringLiteral("setting Text, 1 MB"), largeSize, 80);
    constexpr double ofText = sizeof(QChar);
    figures.add(QStringLiteral("memory beside the text, a character of 10 MB"), memoryPerCharacter(hugeSize) - ofText,
                QStringLiteral("bytes"), 3);
}

void surfaceTyping(Figures &figures)
{
    typing(figures, QStringLiteral("a typed letter, painted, 63,900 characters"), page(colouredSize, seed),
           colouredSize / 2, 0.6);
    typing(figures, QStringLiteral("a typed letter, painted, 1 MB, in the middle"), page(largeSize, seed),
           largeSize / 2, 0.6);
    typing(figures, QStringLiteral("a typed letter, painted, 1 MB, at the start"), page(largeSize, seed), 10, 0.6);
    typing(figures, QStringLiteral("a typed letter, painted, 1 MB, wrapped, in the middle"), page(largeSize, seed),
           largeSize / 2, 0.6, true);
}

void surfaceColouring(Figures &figures)
{
    colour(figures);
}

void surfaceSingleLine(Figures &figures)
{
    const QString tag = QStringLiteral("<div>");
    const struct {
        const char *name;
        QString text;
        double opened; // ms
    } lines[] = {
        {"500 KB of <div>", tag.repeated(100'000), 200},
        {"1 MB of cells", QStringLiteral("<td>cell</td>").repeated(largeSize / 13), 200},
        {"100,000 marks on a letter", u'e' + QString(100'000, QChar(0x301)), 200},
        {"200 MB of <div>", tag.repeated(40'000'000), 3000},
    };
    constexpr double key = 5; // ms
    for (const auto &line : lines) {
        const QByteArray bytes = line.text.toUtf8();
        for (const bool wrapped : {false, true}) {
            const QString name = QStringLiteral("%1 in a line%2")
                                     .arg(QLatin1String(line.name), wrapped ? QStringLiteral(", wrapped") : QString());
            {
                EditSurface surface;
                surface.setWrapToWindow(wrapped);
                show(surface);
                const double time = medianTime(3, [&] {
                    surface.setText(decodePage(bytes).text);
                    settle();
                });
                figures.add(QStringLiteral("reading and showing ") + name, time * milli, QStringLiteral("ms"),
                            line.opened);
            }
            if (line.text.size() < hugeSize)
                typing(figures, QStringLiteral("a typed letter, painted, in ") + name, line.text, 10, key, wrapped);
        }
    }
}
