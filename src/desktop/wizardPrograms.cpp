#include "desktop/wizardPrograms.h"

#include "common/encodings.h"
#include "common/paths.h"
#include "desktop/wizardOutput.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QTimer>

namespace
{
constexpr int AnswerMilliseconds = 5000; ///< for the names of the wizards
constexpr int EndMilliseconds = 3000;    ///< from the plea to the kill
constexpr qsizetype LongestNotification = 4096;

/// The names as the program wrote them; the line end behind them is none of a name.
QString decodedNames(const QByteArray &bytes)
{
    const QString names = decodeOwnFile(bytes);
    return names.endsWith(QStringLiteral("\r\n")) ? names.chopped(2) : names;
}

/// One start of the program, waited for in an event loop of its own.
class ProgramRun final
{
public:
    enum class End { Normal, Failed, Ended };

    ProgramRun(const QString &program, const QString &folder, std::function<void(const QString &)> notify);

    /// Waits until the program is over; `limit` milliseconds at most, 0 for as long as it takes.
    End run(const QStringList &arguments, int limit);
    void end();
    const QByteArray &output() const { return m_output; }

private:
    void takeOutput();
    void takeNotifications();
    void giveUp();

    QProcess m_process;
    QEventLoop m_loop;
    std::function<void(const QString &)> m_notify;
    QByteArray m_output;
    QByteArray m_notification;
    bool m_ended = false;
    bool m_failed = false;
};

ProgramRun::ProgramRun(const QString &program, const QString &folder, std::function<void(const QString &)> notify)
    : m_notify(std::move(notify))
{
    m_process.setProgram(program);
    m_process.setWorkingDirectory(folder);
    m_process.setStandardInputFile(QProcess::nullDevice());
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] { takeOutput(); });
    QObject::connect(&m_process, &QProcess::readyReadStandardError, &m_process, [this] { takeNotifications(); });
    QObject::connect(&m_process, &QProcess::finished, &m_loop, &QEventLoop::quit);
    QObject::connect(&m_process, &QProcess::errorOccurred, &m_loop, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            m_loop.quit();
    });
}

ProgramRun::End ProgramRun::run(const QStringList &arguments, int limit)
{
    m_process.setArguments(arguments);
    m_process.start();
    if (limit > 0)
        QTimer::singleShot(limit, &m_process, [this] { giveUp(); });
    if (m_process.state() != QProcess::NotRunning)
        m_loop.exec();
    if (m_process.state() != QProcess::NotRunning) { // the program around it ends
        m_process.kill();
        m_process.waitForFinished(EndMilliseconds);
        return End::Ended;
    }
    takeOutput();
    takeNotifications();
    if (m_ended)
        return End::Ended;
    const bool well = m_process.error() == QProcess::UnknownError && m_process.exitStatus() == QProcess::NormalExit &&
                      m_process.exitCode() == 0;
    return well && !m_failed ? End::Normal : End::Failed;
}

void ProgramRun::end()
{
    m_ended = true;
    m_process.terminate();
    QTimer::singleShot(EndMilliseconds, &m_process, [this] { m_process.kill(); });
}

void ProgramRun::giveUp()
{
    m_failed = true;
    m_process.kill();
}

void ProgramRun::takeOutput()
{
    m_output += m_process.readAllStandardOutput();
    if (m_output.size() > LargestWizardOutput && !m_failed)
        giveUp();
}

void ProgramRun::takeNotifications()
{
    m_notification += m_process.readAllStandardError();
    for (qsizetype end = m_notification.indexOf('\n'); end >= 0; end = m_notification.indexOf('\n')) {
        const QByteArray line = m_notification.first(end).trimmed();
        m_notification.remove(0, end + 1);
        if (m_notify && !line.isEmpty())
            m_notify(QString::fromUtf8(line.first(qMin(line.size(), LongestNotification))));
    }
    if (m_notification.size() > LongestNotification) // a line without an end is not kept without an end
        m_notification.truncate(LongestNotification);
}

class WizardProgram final : public NewPageWizard
{
public:
    WizardProgram(const QString &program, const WizardPrograms::WorkingFolder &workingFolder)
        : m_program(program), m_workingFolder(workingFolder)
    {
    }

    std::optional<QString> AvailableWizards() override;
    bool StartWizard(int index) override;
    QString WizardExportData() const override { return m_result.data; }
    bool WizardDataToNewDoc() const override { return m_result.toNewDoc; }
    void end() override;

private:
    QString folder() const;

    QString m_program;
    WizardPrograms::WorkingFolder m_workingFolder;
    WizardOutput m_result;
    ProgramRun *m_running = nullptr;
};

QString WizardProgram::folder() const
{
    const QString wanted = m_workingFolder ? m_workingFolder() : QString();
    return QFileInfo(wanted).isDir() ? wanted : QDir::homePath();
}

std::optional<QString> WizardProgram::AvailableWizards()
{
    ProgramRun run(m_program, folder(), NewPageWizard_NotifyClients);
    m_running = &run;
    const ProgramRun::End end = run.run({QStringLiteral("AvailableWizards")}, AnswerMilliseconds);
    m_running = nullptr;
    if (end != ProgramRun::End::Normal || run.output().contains('\0'))
        return std::nullopt;
    return decodedNames(run.output());
}

bool WizardProgram::StartWizard(int index)
{
    m_result = {};
    ProgramRun run(m_program, folder(), NewPageWizard_NotifyClients);
    m_running = &run;
    const ProgramRun::End end = run.run({QStringLiteral("StartWizard"), QString::number(index)}, 0);
    m_running = nullptr;
    if (end == ProgramRun::End::Ended)
        return true;
    const auto output = end == ProgramRun::End::Normal ? readWizardOutput(run.output()) : std::nullopt;
    if (output)
        m_result = *output;
    return output.has_value();
}

void WizardProgram::end()
{
    if (m_running)
        m_running->end();
}
} // namespace

WizardPrograms::WizardPrograms(const QStringList &folders, const WorkingFolder &workingFolder)
    : m_folders(folders), m_workingFolder(workingFolder)
{
}

std::unique_ptr<NewPageWizard> WizardPrograms::create()
{
    for (const QString &folder : m_folders) {
        const QString program = joinPath(folder, QStringLiteral("NewPageWizard"));
        const QFileInfo file(program);
        if (file.isFile() && file.isExecutable())
            return std::make_unique<WizardProgram>(program, m_workingFolder);
    }
    return nullptr;
}
