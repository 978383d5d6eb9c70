#include "browser/modulePageViews.h"

#include "unit/support/noPages.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
/// Takes a variable out of the environment for as long as it lives.
class Without
{
public:
    explicit Without(const char *name) : m_name(name), m_value(qgetenv(name)) { qunsetenv(name); }
    Without(const Without &) = delete;
    Without &operator=(const Without &) = delete;
    ~Without()
    {
        if (!m_value.isNull())
            qputenv(m_name, m_value);
    }

private:
    const char *m_name;
    QByteArray m_value;
};

TEST(ModulePageViews, SayWhichPartIsNotInstalled)
{
    const QTemporaryDir empty;
    NoPages pages;
    ModulePageViews views({empty.path(), empty.filePath(QStringLiteral("none"))}, pages);
    EXPECT_EQ(views.engine(), nullptr);
    EXPECT_EQ(views.reasonForNone(),
              QStringLiteral("There is no preview: the program's part tagwrighter-webview.so is not installed."));
}

TEST(ModulePageViews, SayWhyAModuleCannotBeLoaded)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("tagwrighter-webview.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no module");
    file.close();
    NoPages pages;
    ModulePageViews views({folder.path()}, pages);
    EXPECT_EQ(views.engine(), nullptr);
    EXPECT_TRUE(views.reasonForNone().startsWith(QStringLiteral("There is no preview: ")))
        << qPrintable(views.reasonForNone());
    EXPECT_TRUE(views.reasonForNone().contains(QStringLiteral("tagwrighter-webview.so")))
        << qPrintable(views.reasonForNone());
}

TEST(ModulePageViews, AreThereWhereTheModuleIs)
{
    NoPages pages;
    ModulePageViews views(partFolders(), pages);
    PageEngine *engine = views.engine();
    ASSERT_NE(engine, nullptr) << qPrintable(views.reasonForNone());
    EXPECT_EQ(views.engine(), engine);
}

TEST(ModulePageViews, AreRefusedWherePagesCouldNotBeShutIn)
{
    const Without open("QTWEBENGINE_DISABLE_SANDBOX");
    const Without flags("QTWEBENGINE_CHROMIUM_FLAGS");
    const QString reason = reasonAgainstPages();
    if (geteuid() == 0)
        EXPECT_TRUE(reason.contains(QStringLiteral("administrator"))) << qPrintable(reason);
    else
        EXPECT_TRUE(reason.isEmpty() || reason.contains(QStringLiteral("user namespaces"))) << qPrintable(reason);
}

TEST(ModulePageViews, AreRefusedWithoutTheProgramThatRunsPages)
{
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qputenv("QTWEBENGINEPROCESS_PATH", "none");
    const QString reason = reasonAgainstPages();
    qunsetenv("QTWEBENGINEPROCESS_PATH");
    EXPECT_EQ(reason, QStringLiteral("There is no preview: QtWebEngineProcess is not installed."));
}
} // namespace
