// What the desktop and distributors are told of the program.
#include "houseFiles.h"
#include "process.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace
{
QString packaging(const char *name)
{
    return QStringLiteral(TEST_SOURCE_DIR "/packaging/") + QLatin1String(name);
}

/// What stands between two texts, the first time.
QString between(const QString &text, const QString &before, const QString &behind)
{
    const qsizetype start = text.indexOf(before);
    const qsizetype end = text.indexOf(behind, start + before.size());
    return start < 0 || end < 0 ? QString() : text.mid(start + before.size(), end - start - before.size());
}

/// Nothing said and no fault found by a checker of the desktop's; skips, saying so, where that is not there.
#define EXPECT_CHECKED(program, ...)                                                                                   \
    if (QStandardPaths::findExecutable(QStringLiteral(program)).isEmpty())                                             \
        GTEST_SKIP() << program " is not installed";                                                                   \
    const Outcome outcome =                                                                                            \
        runProgram(QStringLiteral(program), {__VA_ARGS__},                                                             \
                   {{QStringLiteral("PATH"), qEnvironmentVariable("PATH")}, {QStringLiteral("HOME"), QString()}});     \
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.output) << qPrintable(outcome.errors)

class FlatpakManifest : public testing::Test
{
protected:
    void SetUp() override
    {
        QJsonParseError error;
        const QByteArray text = textOf(packaging("example.harbline.tagwrighter.json")).toUtf8();
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        ASSERT_TRUE(document.isObject()) << qPrintable(error.errorString());
        manifest = document.object();
    }

    QString value(const char *key) const { return manifest.value(QLatin1String(key)).toString(); }

    QJsonObject manifest;
};
} // namespace

TEST(Packaging, DesktopEntryIsValid)
{
    EXPECT_CHECKED("desktop-file-validate", packaging("tagwrighter.desktop"));
}

TEST(Packaging, MetadataAreValid)
{
    EXPECT_CHECKED("appstreamcli", QStringLiteral("validate"), QStringLiteral("--no-net"), QStringLiteral("--pedantic"),
                   packaging("example.harbline.tagwrighter.metainfo.xml"));
}

TEST(Packaging, NamesOneReleaseEverywhere)
{
    const QString version = between(textOf(QStringLiteral(TEST_SOURCE_DIR "/CMakeLists.txt")),
                                    QStringLiteral("project(Tagwrighter VERSION "), QStringLiteral(" "));
    const QString newest = between(textOf(packaging("example.harbline.tagwrighter.metainfo.xml")),
                                   QStringLiteral("<release version=\""), QStringLiteral("\""));
    EXPECT_FALSE(version.isEmpty());
    EXPECT_EQ(newest.toStdString(), version.toStdString());
    EXPECT_EQ(between(textOf(packaging("changelog")), QStringLiteral("("), QStringLiteral(")")).toStdString(),
              version.toStdString());
}

// As the shell calls it: with extended patterns, and the word that is being written.
TEST(Packaging, TheShellCompletesOptionsAndPages)
{
    const QTemporaryDir folder;
    for (const char *name : {"a page.html", "about.css", "archive.zip", "site.tsp"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const auto offered = [&folder](const QString &word) {
        const QString script = QStringLiteral("shopt -s extglob; compopt() { :; }; source \"$1\" && cd \"$2\" && "
                                              "COMP_WORDS=(tagwrighter \"$3\") COMP_CWORD=1 && _tagwrighter && "
                                              "printf '%s\\n' \"${COMPREPLY[@]}\"");
        const Outcome outcome = runProgram(QStringLiteral("bash"),
                                           {QStringLiteral("-c"), script, QStringLiteral("bash"),
                                            packaging("tagwrighter.bash-completion"), folder.path(), word},
                                           {{QStringLiteral("PATH"), qEnvironmentVariable("PATH")}});
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.errors);
        QStringList rows = outcome.output.split(u'\n', Qt::SkipEmptyParts);
        rows.sort();
        return rows;
    };
    EXPECT_EQ(offered(QStringLiteral("--")),
              QStringList({QStringLiteral("--help"), QStringLiteral("--new-instance"), QStringLiteral("--version")}));
    EXPECT_EQ(offered(QStringLiteral("a")), QStringList({QStringLiteral("a page.html"), QStringLiteral("about.css")}));
    EXPECT_EQ(offered(QStringLiteral("s")), QStringList({QStringLiteral("site.tsp")}));
}

TEST_F(FlatpakManifest, IsOfTheProgramOfTheMetadata)
{
    const QString metadata = textOf(packaging("example.harbline.tagwrighter.metainfo.xml"));
    EXPECT_EQ(value("app-id"), between(metadata, QStringLiteral("<id>"), QStringLiteral("</id>")));
    EXPECT_EQ(value("command"), between(metadata, QStringLiteral("<binary>"), QStringLiteral("</binary>")));
}

TEST_F(FlatpakManifest, StandsOnAFixedRuntimeWithTheWebEngine)
{
    EXPECT_EQ(value("runtime"), QStringLiteral("org.kde.Platform"));
    EXPECT_EQ(value("sdk"), QStringLiteral("org.kde.Sdk"));
    EXPECT_EQ(value("base"), QStringLiteral("io.qt.qtwebengine.BaseApp"));
    // The engine is built for one version of the toolkit.
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^6\\.\\d+$")).match(value("runtime-version")).hasMatch());
    EXPECT_EQ(value("base-version"), value("runtime-version"));
}

TEST_F(FlatpakManifest, RenamesOnlyWhatIsInstalled)
{
    const QString rules = textOf(QStringLiteral(TEST_SOURCE_DIR "/cmake/Packaging.cmake"));
    EXPECT_THAT(rules.toStdString(), testing::HasSubstr("/" + value("rename-desktop-file").toStdString()));
    EXPECT_THAT(rules.toStdString(), testing::HasSubstr("/" + value("rename-icon").toStdString() + ".svg"));
    EXPECT_THAT(rules.toStdString(), testing::HasSubstr("RENAME " + value("rename-mime-file").toStdString()));
    const QJsonArray icons = manifest.value(QLatin1String("rename-mime-icons")).toArray();
    EXPECT_EQ(icons.size(), filesUnder(packaging("icons"), {QStringLiteral("*.svg")}).size());
    for (const auto &icon : icons)
        EXPECT_TRUE(QFile::exists(packaging("icons/") + icon.toString() + QStringLiteral(".svg")));
}

TEST_F(FlatpakManifest, BuildsThisTree)
{
    const QJsonArray modules = manifest.value(QLatin1String("modules")).toArray();
    ASSERT_EQ(modules.size(), 1);
    const QJsonObject module = modules.first().toObject();
    EXPECT_EQ(module.value(QLatin1String("buildsystem")).toString(), QStringLiteral("cmake-ninja"));
    const QString presets = textOf(QStringLiteral(TEST_SOURCE_DIR "/CMakeLists.txt"));
    for (const auto &option : module.value(QLatin1String("config-opts")).toArray()) {
        const QString name = between(option.toString(), QStringLiteral("-D"), QStringLiteral("="));
        EXPECT_TRUE(name.startsWith(QLatin1String("CMAKE_")) || presets.contains(QStringLiteral("option(") + name))
            << qPrintable(name);
    }
    const QJsonArray sources = module.value(QLatin1String("sources")).toArray();
    ASSERT_EQ(sources.size(), 1);
    const QString tree = packaging("") + sources.first().toObject().value(QLatin1String("path")).toString();
    EXPECT_TRUE(QFile::exists(tree + QStringLiteral("/CMakeLists.txt"))) << qPrintable(tree);
}

TEST_F(FlatpakManifest, AsksForWhatAnEditorOfASiteNeedsAndNoMore)
{
    QStringList wanted;
    for (const auto &argument : manifest.value(QLatin1String("finish-args")).toArray())
        if (!argument.toString().startsWith(QLatin1String("--env=")))
            wanted.append(argument.toString());
    wanted.sort();
    EXPECT_EQ(wanted, QStringList({QStringLiteral("--device=dri"), QStringLiteral("--filesystem=home"),
                                   QStringLiteral("--share=ipc"), QStringLiteral("--share=network"),
                                   QStringLiteral("--socket=fallback-x11"), QStringLiteral("--socket=wayland")}));
}
