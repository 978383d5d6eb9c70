#include "browser/modulePageViews.h"

#include "browser/namespaces.h"
#include "browser/pageTrial.h"
#include "common/paths.h"
#include "services/pageView.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QOpenGLContext>
#include <unistd.h>

// The toolkit gives its modules access to this, without a header of its own.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace
{
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

ModulePageViews::ModulePageViews(const QStringList &folders, PageSource &source)
    : m_part(folders, QStringLiteral("tagwrighter-webview.so")), m_source(source)
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

PageEngine *ModulePageViews::load()
{
    const bool isInstalled = m_part.isInstalled();
    m_reason =
        isInstalled
            ? reasonAgainstPages()
            : QStringLiteral("There is no preview: the program's part %1 is not installed.").arg(m_part.fileName());
    if (!m_reason.isEmpty())
        return nullptr;
    provideShareContext();
    auto *engine = m_part.engine<PageEngine>();
    if (engine)
        engine->setSource(m_source);
    else
        m_reason = QStringLiteral("There is no preview: %1").arg(m_part.reason());
    return engine;
}
