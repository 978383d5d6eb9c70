#include "browser/modulePageViews.h"

#include "browser/namespaces.h"
#include "browser/pageTrial.h"
#include "common/paths.h"
#include "services/pageView.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QOpenGLContext>
#include <QPluginLoader>
#include <unistd.h>

// The toolkit gives its modules access to this, without a header of its own.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace
{
const QString ModuleName = QStringLiteral("tagwrighter-webview.so");

/// Whether whoever started the program has given up the shutting in, as test runs in a container have to.
bool runsOpen()
{
    return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1 ||
           qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("--no-sandbox");
}

bool hasPageProcess()
{
    const QString named = qEnvironmentVariable("QTWEBENGINEPROCESS_PATH");
    const QString usual =
        joinPath(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath), QStringLiteral("QtWebEngineProcess"));
    return QFileInfo(named.isEmpty() ? usual : named).isExecutable();
}

/// The engine, loaded so late, looks for a context that shares graphics with all windows. It draws without a graphics
/// card here, so it is content with one that was never made real; a real one would cost every machine its driver.
void provideShareContext()
{
    if (!QOpenGLContext::globalShareContext())
        qt_gl_set_global_share_context(new QOpenGLContext(QCoreApplication::instance()));
}
} // namespace

QStringList moduleFolders()
{
    const QString here = QCoreApplication::applicationDirPath();
    QStringList folders;
    for (const char *place : {"/../" TAGWRIGHTER_LIBRARY_FOLDER, "/../lib", "/../../lib"})
        folders.append(here + QLatin1String(place) + QStringLiteral("/tagwrighter"));
    return folders;
}

QString reasonAgainstPages()
{
    if (!runsOpen() && geteuid() == 0)
        return QStringLiteral(
            "There is no preview for the system's administrator, from whom pages could not be kept apart.");
    if (!runsOpen() && !hasNamespaces())
        return QStringLiteral(
            "There is no preview: this machine does not let programs keep pages apart from the rest of it "
            "(user namespaces are switched off).");
    if (!hasPageProcess())
        return QStringLiteral("There is no preview: QtWebEngineProcess is not installed.");
    if (!runsOpen() && hasNamespaceRules() && !showsPages(QCoreApplication::applicationFilePath()))
        return QStringLiteral("There is no preview: a rule of this machine keeps programs from shutting pages in "
                              "(it was tried in a process of its own).");
    return {};
}

ModulePageViews::ModulePageViews(const QStringList &folders, PageSource &source) : m_folders(folders), m_source(source)
{
}

ModulePageViews::~ModulePageViews()
{
    if (m_engine)
        m_engine->shutDown();
}

PageEngine *ModulePageViews::engine()
{
    if (!m_engine)
        m_engine = load();
    return m_engine;
}

QString ModulePageViews::moduleFile() const
{
    for (const QString &folder : m_folders) {
        QString file = joinPath(folder, ModuleName);
        if (QFileInfo(file).isFile())
            return file;
    }
    return {};
}

PageEngine *ModulePageViews::load()
{
    const QString file = moduleFile();
    m_reason = file.isEmpty()
                   ? QStringLiteral("There is no preview: the program's part %1 is not installed.").arg(ModuleName)
                   : reasonAgainstPages();
    if (!m_reason.isEmpty())
        return nullptr;
    provideShareContext();
    QPluginLoader module(file);
    module.setLoadHints(QLibrary::PreventUnloadHint);
    auto *engine = qobject_cast<PageEngine *>(module.instance());
    if (engine)
        engine->setSource(m_source);
    else
        m_reason = QStringLiteral("There is no preview: %1").arg(module.errorString());
    return engine;
}
