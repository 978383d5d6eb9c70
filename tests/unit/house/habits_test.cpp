#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace
{
QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What a pattern finds in a header.
QStringList namesIn(const QString &header, const QString &pattern)
{
    QStringList names;
    static const QString source = QStringLiteral(TEST_SOURCE_DIR "/src/");
    for (auto match = QRegularExpression(pattern).globalMatch(textOf(source + header)); match.hasNext();)
        names.append(match.next().captured(1));
    return names;
}

/// The files of src/ that ask for each of the names: all that hold it but those that define and store it.
QMap<QString, QStringList> filesThatAsk(const QStringList &names)
{
    static const QSet<QString> definitions{QStringLiteral("common/habits.h"), QStringLiteral("services/habits.cpp"),
                                           QStringLiteral("services/settingsKeys.h")};
    const QString source = QStringLiteral(TEST_SOURCE_DIR "/src/");
    QMap<QString, QStringList> files;
    for (QDirIterator each(source, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
         each.hasNext();) {
        const QString path = each.next();
        const QString text = textOf(path);
        for (const QString &name : names)
            if (!definitions.contains(path.mid(source.size())) &&
                text.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(name))))
                files[name].append(path.mid(source.size()));
    }
    return files;
}

/// Whoever changes a rule has to find all that goes by it.
TEST(Habits, AreEachAskedForInTwoFilesAtMost)
{
    const QStringList rules = namesIn(QStringLiteral("common/habits.h"), QStringLiteral("bool (H\\w+) = false;"));
    EXPECT_GE(rules.size(), 27);
    const QMap<QString, QStringList> files = filesThatAsk(rules);
    for (const QString &rule : rules) {
        EXPECT_GE(files[rule].size(), 1) << qPrintable(rule) << " changes nothing";
        EXPECT_LE(files[rule].size(), 2) << qPrintable(rule + QStringLiteral(": ") + files[rule].join(u' '));
    }
}

/// The list of what is kept is worth something only as long as it leads somewhere.
TEST(KeptQuirks, AreDecidedAndPinnedInFilesThatAreThere)
{
    QFile list(QStringLiteral(TEST_SOURCE_DIR "/docs/habits.md"));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(list.readAll());
    static const QRegularExpression row(
        QStringLiteral("^\\| [^|]+ \\| [^|]+ \\| `(src/[^`]+)` \\| `(tests/[^`]+)` \\|"),
        QRegularExpression::MultilineOption);
    int rows = 0;
    for (auto match = row.globalMatch(text); match.hasNext(); ++rows) {
        const QRegularExpressionMatch each = match.next();
        for (const QString &path : {each.captured(1), each.captured(2)})
            EXPECT_TRUE(QFile::exists(QStringLiteral(TEST_SOURCE_DIR "/") + path)) << qPrintable(path);
    }
    EXPECT_GE(rows, 40);
}
} // namespace
