#include "desktop/desktopPrinting.h"

#include "desktop/desktopCommonDialogs.h"
#include "files/printLayout.h"
#include "surface/editSurface.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QMap>
#include <QPainter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace
{
/// Reads the words of a PDF file again, as far as a file of the toolkit's making goes: one font, whose glyphs a table
/// in the file names, and a line of text between BT and ET.
class PdfWords
{
public:
    explicit PdfWords(const QByteArray &pdf)
    {
        for (const QByteArray &stream : streamsOf(pdf)) {
            if (stream.contains("begincmap"))
                readGlyphs(QString::fromLatin1(stream));
            else if (stream.contains("BT"))
                m_contents.append(QString::fromLatin1(stream));
        }
    }

    qsizetype pages() const { return m_contents.size(); }

    QStringList words() const
    {
        QString text;
        for (const QString &page : m_contents)
            text += textOf(page);
        return text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    }

private:
    static QList<QByteArray> streamsOf(const QByteArray &pdf)
    {
        QList<QByteArray> streams;
        for (qsizetype at = pdf.indexOf("stream\n"); at >= 0; at = pdf.indexOf("stream\n", at)) {
            at += 7;
            const qsizetype end = pdf.indexOf("endstream", at);
            if (end < 0)
                break;
            const QByteArray packed = pdf.sliced(at, end - at);
            // qUncompress takes the size in front; a guess too small only makes it look for room.
            const QByteArray size = QByteArray::fromHex("00100000");
            const QByteArray plain = qUncompress(size + packed);
            streams.append(plain.isEmpty() ? packed : plain);
            at = end + 9;
        }
        return streams;
    }

    void readGlyphs(const QString &table)
    {
        static const QRegularExpression range(QStringLiteral("<([0-9A-Fa-f]{4})> <([0-9A-Fa-f]{4})> "
                                                             "(?:<([0-9A-Fa-f]+)>|\\[([^\\]]*)\\])"));
        static const QRegularExpression single(QStringLiteral("<([0-9A-Fa-f]+)>"));
        for (auto found = range.globalMatch(table); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            const int first = match.captured(1).toInt(nullptr, 16);
            const int last = match.captured(2).toInt(nullptr, 16);
            auto each = single.globalMatch(match.captured(4));
            for (int glyph = first; glyph <= last; ++glyph) {
                if (match.captured(3).isEmpty())
                    m_glyphs[glyph] = each.hasNext() ? each.next().captured(1).toInt(nullptr, 16) : 0;
                else
                    m_glyphs[glyph] = match.captured(3).toInt(nullptr, 16) + glyph - first;
            }
        }
    }

    QString textOf(const QString &page) const
    {
        static const QRegularExpression piece(QStringLiteral("\\bBT\\b|<([0-9A-Fa-f]{4,})>"));
        QString text;
        for (auto found = piece.globalMatch(page); found.hasNext();) {
            const QString glyphs = found.next().captured(1);
            if (glyphs.isEmpty())
                text += u'\n';
            for (qsizetype at = 0; at + 4 <= glyphs.size(); at += 4)
                text += QChar(m_glyphs.value(glyphs.mid(at, 4).toInt(nullptr, 16), u'?'));
        }
        return text;
    }

    QList<QString> m_contents;
    QMap<int, int> m_glyphs;
};

class DesktopPrintingTest : public testing::Test
{
protected:
    DesktopPrintingTest()
    {
        printer().setOutputFormat(QPrinter::PdfFormat);
        printer().setOutputFileName(pdf());
        printer().setPageSize(QPageSize(QPageSize::A4));
    }

    /// The toolkit's printer behind the program's.
    QPrinter &printer() { return dynamic_cast<QPrinter &>(printing.printer()->device()); }

    QString pdf() const { return folder.filePath(QStringLiteral("out.pdf")); }

    PrintJob jobOf(const QString &text, const PrintChoices &choices = {})
    {
        EditSurface surface;
        surface.setText(text);
        PrintJob job{.title = QStringLiteral("page.html"), .font = font, .lineNumbers = choices.lineNumbers};
        job.pages = laidOutPages(surface, printing.paper(font), choices);
        return job;
    }

    QByteArray printed(const PrintJob &job)
    {
        EXPECT_FALSE(printing.print(job, [](int) { return true; }));
        QFile file(pdf());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    DesktopPrinting printing{partFolders()};
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
};

const QString source = QStringLiteral(
    "<html>\r\n<body>\r\n\r\n    <p class=\"first\">One paragraph that is so long that it does not fit into "
    "one line of the paper, and which is broken at its blanks therefore, more than once.</p>\r\n"
    "</body>\r\n</html>");

// The preview draws those margins around the page, and so the paper has to have them.
TEST_F(DesktopPrintingTest, LeavesHalfAnInchFreeAroundThePage)
{
    const QSizeF size = printing.paper(font).size;
    EXPECT_NEAR(size.width(), 595 - 72, 1);
    EXPECT_NEAR(size.height(), 842 - 72, 1);
}

TEST_F(DesktopPrintingTest, PutsEveryWordOfThePageOnPaper)
{
    QStringList expected = source.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    expected << QStringLiteral("page.html") << QStringLiteral("1") << QStringLiteral("/") << QStringLiteral("1");
    const PdfWords words(printed(jobOf(source)));
    EXPECT_EQ(words.pages(), 1);
    EXPECT_EQ(words.words(), expected);
}

TEST_F(DesktopPrintingTest, PutsLineNumbersBeforeTheLinesThatBegin)
{
    const QStringList words = PdfWords(printed(jobOf(source, {.lineNumbers = true}))).words();
    EXPECT_EQ(words.mid(0, 7),
              (QStringList{QStringLiteral("1"), QStringLiteral("<html>"), QStringLiteral("2"), QStringLiteral("<body>"),
                           QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("<p")}));
    EXPECT_EQ(words.count(QStringLiteral("5")), 1);
}

TEST_F(DesktopPrintingTest, PrintsOneRunACopy)
{
    PrintJob job = jobOf(QStringLiteral("x"));
    job.copies = 3;
    QList<int> asked;
    EXPECT_FALSE(printing.print(job, [&asked](int page) {
        asked.append(page);
        return true;
    }));
    EXPECT_EQ(asked, (QList<int>{0, 1, 2}));
    QFile file(pdf());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(PdfWords(file.readAll()).pages(), 3);
}

TEST_F(DesktopPrintingTest, EndsWhereItIsCalledOff)
{
    PrintJob job = jobOf(QStringLiteral("x"));
    job.copies = 3;
    int asked = 0;
    EXPECT_FALSE(printing.print(job, [&asked](int) { return ++asked < 2; }));
    EXPECT_EQ(asked, 2);
}

TEST_F(DesktopPrintingTest, TellsWhatCannotBePrinted)
{
    printer().setOutputFileName(folder.filePath(QStringLiteral("no/such/folder/out.pdf")));
    const std::optional<PrintError> error = printing.print(jobOf(QStringLiteral("x")), [](int) { return true; });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number, PrintError::Failed);
}

TEST_F(DesktopPrintingTest, KeepsTheLinesWithinThePaper)
{
    const Paper paper = printing.paper(font);
    for (const PrintedPage &page : jobOf(source).pages)
        for (const PrintedLine &line : page.lines)
            EXPECT_LE(paper.textWidth(line.text), paper.size.width()) << line.text.toStdString();
}

TEST_F(DesktopPrintingTest, PrintsAPictureOnAPageOfItsOwnForEachCopy)
{
    QList<QRectF> places;
    const PictureJob job{.title = QStringLiteral("Map"),
                         .copies = 2,
                         .landscape = true,
                         .draw = [&places](QPainter &painter, const QRectF &place) {
                             places.append(place);
                             painter.fillRect(place, Qt::black);
                         }};
    EXPECT_FALSE(printing.printPicture(job));
    ASSERT_EQ(places.size(), 2);
    EXPECT_GT(places[0].width(), places[0].height());
    EXPECT_EQ(places[0], places[1]);
    EXPECT_EQ(printer().pageLayout().orientation(), QPageLayout::Portrait);
    EXPECT_GT(QFileInfo(pdf()).size(), 0);
}

TEST_F(DesktopPrintingTest, DrawsIntoAPictureThatHoldsItsText)
{
    const SvgFile file = printing.svg({.title = QStringLiteral("The <map>\u0001"),
                                       .size = {120.5, 40},
                                       .draw = [](QPainter &painter, const QRectF &place) {
                                           EXPECT_EQ(place, QRectF(0, 0, 120.5, 40));
                                           painter.drawText(place, QStringLiteral("a & b\u0002"));
                                       }});
    EXPECT_EQ(file.reason, QString());
    QXmlStreamReader reader(file.bytes);
    ASSERT_TRUE(reader.readNextStartElement());
    EXPECT_EQ(reader.attributes().value(QStringLiteral("viewBox")), QStringLiteral("0 0 120.5 40"));
    QString text;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters())
            text += reader.text();
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    EXPECT_TRUE(text.contains(QStringLiteral("The <map>")));
    EXPECT_TRUE(text.contains(QStringLiteral("a & b")));
}

// A package may have been installed in part.
class WithoutPapers : public testing::Test
{
protected:
    QTemporaryDir empty;
    DesktopPrinting printing{{empty.path()}};
    QString reason = QStringLiteral("The program's part tagwrighter-papers.so is not installed.");
};

TEST_F(WithoutPapers, HasPaperOfTheUsualSizeForThePreview)
{
    const Paper paper = printing.paper(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    EXPECT_EQ(paper.size, QSizeF(595 - 72, 842 - 72));
    EXPECT_GT(paper.lineHeight, 0);
    EXPECT_GT(paper.textWidth(QStringLiteral("x")), 0);
}

TEST_F(WithoutPapers, TellsWhatIsMissingWhenItIsToPrint)
{
    EXPECT_EQ(DesktopCommonDialogs(printing).showPrint(), 1);
    const std::optional<PrintError> error = printing.print({}, [](int) { return true; });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number, PrintError::Unexpected);
    EXPECT_EQ(error->description, reason);
    const std::optional<PrintError> ofPicture = printing.printPicture({});
    ASSERT_TRUE(ofPicture);
    EXPECT_EQ(ofPicture->description, reason);
}

TEST_F(WithoutPapers, TellsWhatIsMissingWhenItIsToDrawIntoAFile)
{
    const SvgFile file = printing.svg({});
    EXPECT_EQ(file.reason, reason);
    EXPECT_TRUE(file.bytes.isEmpty());
}
} // namespace
