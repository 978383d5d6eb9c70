#include "desktop/desktopSystemFacts.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>

#include <sys/sysinfo.h>

namespace
{
QString desktopName()
{
    const QString name = qEnvironmentVariable("XDG_CURRENT_DESKTOP", qEnvironmentVariable("DESKTOP_SESSION"));
    return name.isEmpty() ? QStringLiteral("unknown") : name;
}

QString memoryText()
{
    struct sysinfo system = {};
    if (::sysinfo(&system) != 0)
        return QStringLiteral("unknown");
    const QLocale locale;
    const auto size = [&](unsigned long units) {
        return locale.formattedDataSize(static_cast<qint64>(units) * static_cast<qint64>(system.mem_unit));
    };
    return QStringLiteral("%1, %2 of them free").arg(size(system.totalram), size(system.freeram));
}

QString screenText()
{
    QStringList screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(QStringLiteral("%1 x %2 at scale %3")
                           .arg(screen->size().width())
                           .arg(screen->size().height())
                           .arg(screen->devicePixelRatio()));
    return screens.join(QStringLiteral(", "));
}

QString folder(QStandardPaths::StandardLocation place)
{
    return QDir::toNativeSeparators(QStandardPaths::writableLocation(place) + QStringLiteral("/tagwrighter"));
}
} // namespace

QList<SystemFact> DesktopSystemFacts::all()
{
    return {
        {QStringLiteral("System"), QSysInfo::prettyProductName()},
        {QStringLiteral("Kernel"), QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()},
        {QStringLiteral("Processor"), QSysInfo::currentCpuArchitecture()},
        {QStringLiteral("Memory"), memoryText()},
        {QStringLiteral("Desktop"), desktopName()},
        {QStringLiteral("Window system"), QGuiApplication::platformName()},
        {QStringLiteral("Screens"), screenText()},
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion())},
        {QStringLiteral("Browser engine"),
         QStringLiteral("Qt WebEngine ") + QStringLiteral(TAGWRIGHTER_ENGINE_VERSION)},
        {QStringLiteral("Program's folder"), m_appPath},
        {QStringLiteral("Settings folder"), folder(QStandardPaths::GenericConfigLocation)},
        {QStringLiteral("Temporary folder"), QDir::tempPath()},
    };
}

QString DesktopSystemFacts::language() const
{
    const QString name = QLocale::system().bcp47Name();
    return name == u"C" ? QStringLiteral("en") : name; // no language at all
}
