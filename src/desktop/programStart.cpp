#include "desktop/programStart.h"

#include "common/paths.h"
#include "desktop/oneInstance.h"
#include "frame/application.h"
#include "services/habits.h"
#include "services/services.h"

namespace
{
bool takeOption(QString &line)
{
    if (line != NewInstanceOption && !line.startsWith(NewInstanceOption + u' '))
        return false;
    line = line.mid(NewInstanceOption.size() + 1);
    return true;
}
} // namespace

ProgramStart::ProgramStart() = default;

ProgramStart::~ProgramStart() = default;

bool ProgramStart::begin(Application &program, const Services &services, const QString &commandLine)
{
    if (!readHabits(services.settings).HabitStart) {
        program.Main(commandLine);
        return true;
    }
    QString line = commandLine;
    const QString place = joinPath(services.statePath, QStringLiteral("instance"));
    if (!takeOption(line)) {
        if (OneInstance::handOver(place, line))
            return false;
        m_instance = std::make_unique<OneInstance>(place, [&program](const QString &text) { program.takeOver(text); });
    }
    program.Main(line);
    return true;
}
