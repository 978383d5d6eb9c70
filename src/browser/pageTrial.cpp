#include "browser/pageTrial.h"

#include "browser/webBrowser.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTimer>

namespace
{
constexpr const char *Mark = "TAGWRIGHTER_TRIES_PAGES"; ///< set in the environment of a process that tries
constexpr const char *Rules = "/proc/sys/kernel/apparmor_restrict_unprivileged_userns";
constexpr int Patience = 15000; ///< milliseconds; a slow disk has hundreds of megabytes to read

constexpr int Shown = 0;
constexpr int NotShown = 1;

} // namespace

bool triesPages()
{
    return !qEnvironmentVariableIsEmpty(Mark);
}

int tryPages(PageViews &views)
{
    WebBrowser browser(views);
    browser.show();
    QObject::connect(&browser, &WebBrowser::navigationFinished, qApp,
                     [&browser] { QCoreApplication::exit(browser.Notice().isEmpty() ? Shown : NotShown); });
    QTimer::singleShot(Patience, qApp, [] { QCoreApplication::exit(NotShown); });
    QTimer::singleShot(0, &browser, [&browser] {
        browser.Navigate(QStringLiteral("about:blank"));
        if (!browser.Notice().isEmpty()) // there is no engine to load it
            QCoreApplication::exit(NotShown);
    });
    return QApplication::exec();
}
bool hasNamespaceRules()
{
    QFile rules(QString::fromLatin1(Rules));
    return !triesPages() && rules.open(QIODevice::ReadOnly) && rules.read(1) == "1";
}

bool showsPages(const QString &program)
{
    QProcess trial;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(Mark), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen")); // nobody is to see it
    trial.setProcessEnvironment(environment);
    trial.setStandardOutputFile(QProcess::nullDevice());
    trial.setStandardErrorFile(QProcess::nullDevice());
    trial.start(program, QStringList());
    if (!trial.waitForFinished(Patience + Patience / 3)) {
        trial.kill();
        trial.waitForFinished();
        return false;
    }
    return trial.exitStatus() == QProcess::NormalExit && trial.exitCode() == Shown;
}
