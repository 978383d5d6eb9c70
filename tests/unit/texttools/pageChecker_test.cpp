// The check that goes on while a page is written: that it finds what a check of the whole text finds, and reads little.
#include "texttools/pageChecker.h"

#include "unit/support/processorTime.h"

#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <algorithm>
#include <gtest/gtest.h>

namespace
{
const QString source = QStringLiteral(TEST_SOURCE_DIR);

const PageRules &rules()
{
    static const std::shared_ptr<const PageRules> read = [] {
        QFile file(source + QStringLiteral("/data/Page.rules"));
        return file.open(QIODevice::ReadOnly) ? PageRules::read(file.readAll()) : nullptr;
    }();
    return *read;
}

QStringList pagesUnder(const char *folder)
{
    QStringList texts;
    QDirIterator walk(source + QLatin1String(folder), {QStringLiteral("*.htm*"), QStringLiteral("*.tpl")}, QDir::Files,
                      QDirIterator::Subdirectories);
    QStringList paths;
    while (walk.hasNext())
        paths += walk.next();
    paths.sort();
    for (const QString &path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            texts += QString::fromUtf8(file.readAll());
    }
    return texts;
}

/// Files whose names have an even length are there.
PageCheckContext contextOf()
{
    PageCheckContext context;
    context.exists = [](const QString &path) { return path.size() % 2 == 0; };
    context.format = FileFormat{};
    return context;
}

std::string told(const PageProblem &problem)
{
    return QStringLiteral("%1+%2 %3: %4 (%5), %6 fixes")
        .arg(problem.start)
        .arg(problem.length)
        .arg(problem.rule, problem.message, problem.remedy)
        .arg(problem.fix.size())
        .toStdString();
}

/// The first thing in which two lists differ; empty where they are the same.
std::string difference(const QList<PageProblem> &now, const QList<PageProblem> &whole)
{
    for (qsizetype i = 0; i < std::min(now.size(), whole.size()); ++i)
        if (!(now[i] == whole[i]))
            return told(now[i]) + "\n  instead of\n" + told(whole[i]);
    if (now.size() != whole.size())
        return std::to_string(now.size()) + " instead of " + std::to_string(whole.size());
    return {};
}

/// What somebody may write, paste or break.
QString piece(QRandomGenerator &random)
{
    static const QStringList pieces =
        QStringLiteral(
            "<|>|\"|'|&|&amp;|=|/|-|--|x| |\r\n|<p>|</p>|<b>|</b>|<div>|</div>|<div id=\"a\">|<p id=\"b\">|<a "
            "href=\"#a\">x</a>|"
            "<a href=\"#nowhere\">|</a>|<ul><li>x|</ul>|<table>|<tr><td>|</table>|<!--|-->|<script>|</script>|<style>|"
            "</style>|<svg>|<path "
            "d=\"\"/>|</svg>|<math>|<mi>|</math>|<textarea>|</textarea>|<select><option>|</select>|"
            "<form>|</form>|<label for=\"b\">|</label>|<input type=\"text\" "
            "list=\"a\">|<h1>|</h1>|<h4>x</h4>|<font>|</font>|"
            "<foo>|</foo>|<x-y>|</body>|</html>|<body>|<html lang=\"de\">|<head>|</head>|<title>|</title>|<base "
            "href=\"x\">|"
            "<template>|</template>|<button>|</button>|<img src=\"ab\">|<img src=\"abc\" alt=\"\">|<link href=\"abc\">|"
            "<!DOCTYPE html>|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML "
            "4.01//EN\">|<plaintext>|<dl><dt>|<dd>|</dl>|<ruby>|<rt>|"
            "<main>|</main>|<iframe>|</iframe>|<frameset>|<noscript>|</noscript>| class=\"c\"| id=\"a\"| foo=\"1\"|")
            .split(u'|');
    QString text;
    for (int count = 1 + int(random.bounded(3)) / 2; count > 0; --count)
        text += pieces[random.bounded(int(pieces.size()))];
    return text;
}

/// A text with one change somewhere; mostly near the place of the last one, as somebody writes.
void change(QString &text, qsizetype &place, QRandomGenerator &random)
{
    const auto size = int(text.size());
    if (random.bounded(4) == 0)
        place = random.bounded(size + 1);
    place = std::clamp<qsizetype>(place + random.bounded(9) - 4, 0, text.size());
    const int kind = random.bounded(10);
    if (kind < 5) {
        const QString added = piece(random);
        text.insert(place, added);
        place += added.size();
    } else if (kind < 8) {
        text.remove(place, 1 + random.bounded(kind == 7 ? 400 : 6));
    } else {
        text.replace(place, random.bounded(30), piece(random));
    }
}

/// So many changes of a page, after each of which a check that goes on finds what a new one finds.
void expectSame(const QString &page, int changes, quint32 seed)
{
    QRandomGenerator random(seed);
    const PageCheckContext context = contextOf();
    PageChecker checker(rules());
    QString text = page;
    QStringList former;
    qsizetype place = 0;
    checker.check(text, context);
    for (int i = 0; i < changes; ++i) {
        if (!former.isEmpty() && random.bounded(4) == 0) {
            text = former.takeLast(); // undone
        } else {
            former.append(text);
            change(text, place, random);
        }
        const std::string differs = difference(checker.check(text, context), checkPage(text, rules(), context));
        ASSERT_EQ(differs, std::string()) << "seed " << seed << ", change " << i << " at " << place;
    }
}

/// A page of that many characters, made of others' bodies, so that several parts of it are kept.
QString longPage(const QStringList &pages, qsizetype size)
{
    QString body;
    for (qsizetype i = 0; body.size() < size; ++i) {
        const QString &page = pages[i % pages.size()];
        const qsizetype start = page.indexOf(QStringLiteral("<body>")) + 6;
        body += page.mid(start, page.indexOf(QStringLiteral("</body>")) - start);
    }
    return QStringLiteral("<!DOCTYPE html>\r\n<html lang=\"en\"><head><title>x</title></head>\r\n<body>") + body +
           QStringLiteral("</body></html>\r\n");
}

TEST(PageChecker, FindsWhatAWholeCheckFindsAfterAnyChange)
{
    const int times = std::max(1, qEnvironmentVariableIntValue("TAGWRIGHTER_PAGE_CHANGES"));
    const QStringList right = pagesUnder("/tests/unit/texttools/rightPages");
    const QStringList help = pagesUnder("/data/help/topics/using");
    ASSERT_GE(right.size(), 5);
    ASSERT_GE(help.size(), 10);
    quint32 seed = static_cast<quint32>(std::max(1, qEnvironmentVariableIntValue("TAGWRIGHTER_SEED")));
    for (int round = 0; round < times; ++round) {
        for (const QString &page : right)
            expectSame(page, 60, ++seed);
        expectSame(longPage(right, 30'000), 150, ++seed);
        expectSame(longPage(help, 60'000), 150, ++seed);
        expectSame(QString(), 150, ++seed);
    }
}

// More than is told of a rule: what the first ones leave room for comes from places that were not read again.
TEST(PageChecker, KnowsWhatWasNotToldOf)
{
    QString text = QStringLiteral("<!DOCTYPE html><html lang=\"en\"><head><title>x</title></head><body>");
    for (int i = 0; i < 2 * MostOfARule; ++i)
        text += QStringLiteral("<p>words that take some room in the page</p><foo>%1</foo><p foo>x</p>\r\n").arg(i);
    PageChecker checker(rules());
    checker.check(text, {});
    QRandomGenerator random(7);
    for (int i = 0; i < 40; ++i) {
        const qsizetype at = text.indexOf(QStringLiteral("foo>"), random.bounded(int(text.size()) - 10));
        text.replace(at, 3, i % 4 ? QStringLiteral("b") : QStringLiteral("oof"));
        ASSERT_EQ(difference(checker.check(text, {}), checkPage(text, rules(), {})), std::string()) << i;
    }
}

TEST(PageChecker, ReadsLittleAfterAKey)
{
    QString text = longPage(pagesUnder("/data/help/topics/using"), 300'000);
    PageChecker checker(rules());
    double before = processorMilliseconds();
    checker.check(text, {});
    const double whole = processorMilliseconds() - before;
    double most = 0;
    for (const qsizetype part : {1, 2, 3}) {
        const qsizetype place = text.indexOf(QStringLiteral("</p>"), text.size() * part / 4);
        for (const char *keys :
             {"x", " ", "&", "amp;", "\r\n", "<b>x</b>", "<", " </p><p>", "<ul><li>x</ul>", " foo"}) {
            text.insert(text.indexOf(QStringLiteral("</p>"), place), QLatin1String(keys));
            before = processorMilliseconds();
            const QList<PageProblem> found = checker.check(text, {});
            most = std::max(most, processorMilliseconds() - before);
            ASSERT_EQ(difference(found, checkPage(text, rules(), {})), std::string()) << keys;
        }
    }
    EXPECT_LT(most, whole / 3) << "milliseconds; it is less than a tenth of the text that is read";
}

// What was there and is gone, and what has come, is seen without a change of the text.
TEST(PageChecker, LooksForFilesEachTime)
{
    bool there = false;
    PageCheckContext context;
    context.exists = [&](const QString &) { return there; };
    const QString text = QStringLiteral("<p><a href=\"other.htm\">x</a></p>");
    PageChecker checker(rules());
    EXPECT_EQ(checker.check(text, context).size(), 1);
    there = true;
    EXPECT_EQ(checker.check(text, context).size(), 0);
    EXPECT_EQ(checker.check(text, {}).size(), 0);
    there = false;
    EXPECT_EQ(checker.check(text, context).size(), 1);
}

TEST(PageShift, IsTheLeastChange)
{
    const auto between = [](const char *older, const char *newer) {
        const PageShift shift = PageShift::between(QString::fromUtf8(older), QString::fromUtf8(newer));
        return QStringLiteral("%1-%2 %1-%3").arg(shift.start).arg(shift.oldEnd).arg(shift.newEnd).toStdString();
    };
    EXPECT_EQ(between("abc", "abxc"), "2-2 2-3");
    EXPECT_EQ(between("abc", "ac"), "1-2 1-1");
    EXPECT_EQ(between("aaa", "aaaa"), "3-3 3-4");
    EXPECT_EQ(between("aaaa", "aaa"), "3-4 3-3");
    EXPECT_EQ(between("abc", "xyz"), "0-3 0-3");
    EXPECT_EQ(between("", "x"), "0-0 0-1");
    EXPECT_EQ(between("same", "same"), "4-4 4-4");
}

TEST(PageShift, MovesRanges)
{
    const PageShift shift{10, 15, 12}; // three less
    EXPECT_EQ(shift.moved({2, 8}), (html::Range{2, 8})) << "up to it";
    EXPECT_EQ(shift.moved({2, 20}), (html::Range{2, 17})) << "around it";
    EXPECT_EQ(shift.moved({15, 4}), (html::Range{12, 4})) << "behind it";
    EXPECT_EQ(shift.moved({12, 4}).start, -1);
    EXPECT_EQ(shift.moved({2, 10}).start, -1);
    const PageShift added{10, 10, 13};
    EXPECT_EQ(added.moved({10, 4}), (html::Range{13, 4})) << "put in right in front of it";
    EXPECT_EQ(added.moved({6, 4}), (html::Range{6, 4})) << "right behind it";
    EXPECT_TRUE(shift.touches({14, 5}));
    EXPECT_FALSE(shift.touches({15, 5}));
    EXPECT_FALSE(shift.touches({5, 5}));
}
} // namespace
