#include "files/templateFiles.h"

#include "common/fileErrors.h"
#include "files/localPaths.h"
#include "storage/localFileSystem.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
using container::Entry;

class TemplateFilesTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return folder.filePath(name); }

    QString made(const QString &name, const QByteArray &bytes)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    QByteArray bytesOf(const QString &name)
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    Packed pack(const QList<FileToPack> &toPack)
    {
        return writeContainer(files, path(QStringLiteral("t.ctp")), toPack,
                              {.begun = [this](const QString &name) { begun.append(name); },
                               .failed = [this](const QString &name) { failed.append(name); }});
    }

    QByteArray unpacked(const Entry &entry)
    {
        const QString target = path(QStringLiteral("out"));
        QFile::remove(target);
        EXPECT_FALSE(extractEntry(files, path(QStringLiteral("t.ctp")), entry, target));
        return bytesOf(QStringLiteral("out"));
    }

    static FileToPack page(const QByteArray &bytes) { return {.name = container::pageName(), .bytes = bytes}; }

    QTemporaryDir folder;
    LocalFileSystem files;
    QStringList begun;
    QStringList failed;
};

TEST_F(TemplateFilesTest, HaveNoGapsBetweenTheirParts)
{
    pack({page("<p>"), {.name = QStringLiteral("a.gif"), .source = made(QStringLiteral("a.gif"), "GIF")}});
    const QByteArray expected = QByteArray("TagwrighterCombinedTemplateFile") + QByteArray::fromHex("2a000000") +
                                "<p>" + "GIF" + QByteArray::fromHex("2400000003000000") +
                                QByteArray("index_tmp.dat\0", 14) + QByteArray::fromHex("2700000003000000") +
                                QByteArray("a.gif\0", 6);
    EXPECT_EQ(bytesOf(QStringLiteral("t.ctp")).toHex(), expected.toHex());
    EXPECT_TRUE(IsCombinedTemplate(files, path(QStringLiteral("t.ctp"))));
    EXPECT_EQ(begun, (QStringList{QStringLiteral("index_tmp.dat"), QStringLiteral("a.gif")}));
}

TEST_F(TemplateFilesTest, GiveBackWhatWasPackedOverThePieceSizeToo)
{
    QByteArray random(2'500'001, Qt::Uninitialized);
    for (char &byte : random)
        byte = static_cast<char>(QRandomGenerator::global()->generate());
    const QList<qint64> sizes{1, 999'999, 1'000'000, 1'000'001, 2'000'000, 2'500'001};
    QList<FileToPack> toPack{page("<p>")};
    for (const qint64 size : sizes) {
        const QString name = QString::number(size);
        toPack.append({.name = name, .source = made(name, random.first(size))});
    }
    ASSERT_FALSE(pack(toPack).error);
    const QList<Entry> entries = readContainer(files, path(QStringLiteral("t.ctp"))).entries;
    ASSERT_EQ(entries.size(), sizes.size() + 1);
    for (qsizetype i = 0; i < sizes.size(); ++i)
        EXPECT_EQ(unpacked(entries[i + 1]), random.first(sizes[i])) << sizes[i];
}

TEST_F(TemplateFilesTest, PassOverFilesThatAreNotThere)
{
    const Packed packed = pack({page("<p>"), {.name = QStringLiteral("gone"), .source = path(QStringLiteral("gone"))}});
    EXPECT_EQ(packed.names, QStringList{QStringLiteral("index_tmp.dat")});
    EXPECT_TRUE(failed.isEmpty());
}

TEST_F(TemplateFilesTest, ReportFilesThatCannotBeReadAndGoOn)
{
    QDir(folder.path()).mkdir(QStringLiteral("sub")); // which can be asked for its size, and not be read
    const Packed packed = pack({page("<p>"),
                                {.name = QStringLiteral("sub"), .source = path(QStringLiteral("sub"))},
                                {.name = QStringLiteral("b"), .source = made(QStringLiteral("b"), "B")}});
    EXPECT_FALSE(packed.error);
    EXPECT_EQ(packed.names, (QStringList{QStringLiteral("index_tmp.dat"), QStringLiteral("b")}));
    EXPECT_EQ(failed, QStringList{QStringLiteral("sub")});
    const QList<Entry> entries = readContainer(files, path(QStringLiteral("t.ctp"))).entries;
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(unpacked(entries[1]), "B");
}

TEST_F(TemplateFilesTest, ReportFilesWhoseNamesHaveNoPlace)
{
    const QString longName(255, u'n');
    const Packed packed = pack({page("<p>"), {.name = longName, .source = made(QStringLiteral("b"), "B")}});
    EXPECT_EQ(packed.names, QStringList{QStringLiteral("index_tmp.dat")});
    EXPECT_EQ(failed, QStringList{longName});
}

TEST_F(TemplateFilesTest, EndTheirNamesAtAnEmptyFile)
{
    pack({page("<p>"),
          {.name = QStringLiteral("empty"), .source = made(QStringLiteral("empty"), "")},
          {.name = QStringLiteral("behind"), .source = made(QStringLiteral("behind"), "B")}});
    EXPECT_EQ(readContainer(files, path(QStringLiteral("t.ctp"))).entries.size(), 1);
}

TEST_F(TemplateFilesTest, AreNotWrittenWhereTheirFolderIsMissing)
{
    const Packed packed = writeContainer(files, path(QStringLiteral("no/t.ctp")), {page("<p>")},
                                         {.begun = [](const QString &) {}, .failed = [](const QString &) {}});
    ASSERT_TRUE(packed.error);
    EXPECT_EQ(packed.error->code, PathNotFoundError);
    EXPECT_TRUE(packed.names.isEmpty());
}

TEST_F(TemplateFilesTest, KeepWhatStandsBehindTheHeaderWhenMadeEmpty)
{
    made(QStringLiteral("old"), QByteArray(35, 'o') + "the rest");
    EXPECT_FALSE(writeEmptyContainer(files, path(QStringLiteral("old"))));
    EXPECT_EQ(bytesOf(QStringLiteral("old")), container::header(0) + "the rest");
    EXPECT_FALSE(writeEmptyContainer(files, path(QStringLiteral("new"))));
    EXPECT_EQ(bytesOf(QStringLiteral("new")), container::header(0));
}

TEST_F(TemplateFilesTest, TellContentsThatDoNotLieInTheFile)
{
    pack({page("<p>")});
    const std::optional<FileError> error =
        extractEntry(files, path(QStringLiteral("t.ctp")), {QStringLiteral("x"), 36, 500}, path(QStringLiteral("out")));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, FileCorruptError);
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("out"))));
}

TEST_F(TemplateFilesTest, AreReadAsEmptyWhateverElseTheyAre)
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("short"), QByteArray(34, 'x'), QByteArray(400, '\xff')}) {
        const QString name = made(QStringLiteral("x.ctp"), bytes);
        const ContainerListing listing = readContainer(files, name);
        EXPECT_FALSE(listing.error);
        EXPECT_TRUE(listing.entries.isEmpty());
    }
    EXPECT_EQ(readContainer(files, path(QStringLiteral("gone"))).error->code, FileNotFoundError);
}

/// The bytes of a container with a page and two files, each with some of them changed, cut off or put in twice.
class Mutations
{
public:
    explicit Mutations(const QByteArray &whole) : m_whole(whole) {}

    QByteArray next()
    {
        QByteArray bytes = m_whole;
        const int changes = m_random.bounded(1, 6);
        for (int i = 0; i < changes && !bytes.isEmpty(); ++i)
            change(bytes);
        return bytes;
    }

private:
    void change(QByteArray &bytes)
    {
        static const QByteArray hostile[] = {"..",
                                             "/",
                                             "\\",
                                             QByteArray("\0", 1),
                                             "\xff\xff\xff\x7f",
                                             "\xff\xff\xff\xff",
                                             QByteArray("\0\0\0\0", 4),
                                             "C:",
                                             "../../x",
                                             "/etc/x"};
        const qsizetype place = m_random.bounded(static_cast<int>(bytes.size()));
        switch (m_random.bounded(4)) {
        case 0:
            bytes[place] = static_cast<char>(m_random.bounded(256));
            break;
        case 1:
            bytes.truncate(place);
            break;
        case 2:
            bytes.insert(place, hostile[m_random.bounded(static_cast<int>(std::size(hostile)))]);
            break;
        default:
            const QByteArray &put = hostile[m_random.bounded(static_cast<int>(std::size(hostile)))];
            bytes.replace(place, put.size(), put);
            break;
        }
    }

    QByteArray m_whole;
    QRandomGenerator m_random{20260301};
};

TEST_F(TemplateFilesTest, LeadNowhereElseWhateverIsChangedInThem)
{
    // More of them by hand, under the sanitizers, before a change of the reader is let go.
    const int rounds = qEnvironmentVariableIntValue("TAGWRIGHTER_MUTATIONS") > 0
                           ? qEnvironmentVariableIntValue("TAGWRIGHTER_MUTATIONS")
                           : 2000;
    pack({page("<p>A page</p>"),
          {.name = QStringLiteral("a.gif"), .source = made(QStringLiteral("a.gif"), "GIF89a, more or less")},
          {.name = QStringLiteral("b.css"), .source = made(QStringLiteral("b.css"), "p { color: red }")}});
    Mutations mutations(bytesOf(QStringLiteral("t.ctp")));
    const QString target = path(QStringLiteral("target"));
    QDir().mkpath(target);
    const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (int round = 0; round < rounds; ++round) {
        const QByteArray bytes = mutations.next();
        made(QStringLiteral("t.ctp"), bytes);
        for (const Entry &entry : readContainer(files, path(QStringLiteral("t.ctp"))).entries) {
            if (!container::isPlainName(entry.name))
                continue;
            const QString out = target + u'/' + entry.name;
            if (!extractEntry(files, path(QStringLiteral("t.ctp")), entry, out)) {
                ASSERT_LE(files.size(out).value_or(0), bytes.size());
                ASSERT_TRUE(QFile::remove(out)) << qPrintable(entry.name);
            }
        }
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), before);
    EXPECT_TRUE(QDir(target).isEmpty());
}

/// The card that the program brings along, as it is taken apart again.
TEST(ShippedTemplates, HoldTheCardAsItsSourcesHaveIt)
{
    LocalFileSystem files;
    const QString sources = QStringLiteral(TEST_SOURCE_DIR "/tools/templates/card/");
    const QString shipped = QStringLiteral(TEST_SOURCE_DIR "/data/Template/Card.ctp");
    const QList<Entry> entries = readContainer(files, shipped).entries;
    ASSERT_EQ(entries.size(), 3);
    QTemporaryDir folder;
    const auto contents = [&](const Entry &entry) {
        const QString out = folder.filePath(QStringLiteral("out"));
        EXPECT_FALSE(extractEntry(files, shipped, entry, out));
        return files.readAll(out).bytes;
    };
    EXPECT_EQ(contents(entries[1]), files.readAll(sources + entries[1].name).bytes);
    EXPECT_EQ(contents(entries[2]), files.readAll(sources + entries[2].name).bytes);
    QByteArray page = files.readAll(sources + QStringLiteral("card.html")).bytes;
    page.replace("\n", "\r\n")
        .replace("\"card.", "\"\x01"
                            "card.");
    EXPECT_EQ(entries[0].name, container::pageName());
    EXPECT_EQ(contents(entries[0]), page);
}
} // namespace
