#include "desktop/programStart.h"

#include "common/paths.h"
#include "common/programState.h"
#include "desktop/oneInstance.h"
#include "frame/application.h"
#include "services/habits.h"
#include "services/services.h"

namespace
{
bool takeOption(QString &line, const QString &option)
{
    if (line != option && !line.startsWith(option + u' '))
        return false;
    line = line.mid(option.size() + 1);
    return true;
}
} // namespace

ProgramStart::ProgramStart() = default;

ProgramStart::~ProgramStart() = default;

bool ProgramStart::begin(Application &program, const Services &services, const QString &commandLine)
{
    QString line = commandLine;
    program.context().state.StartedAnew = takeOption(line, StartedAnewOption);
    if (!readHabits(services.settings).HabitStart) {
        program.Main(line);
        return true;
    }
    const QString place = joinPath(services.statePath, QStringLiteral("instance"));
    if (!takeOption(line, NewInstanceOption)) {
        if (OneInstance::handOver(place, line))
            return false;
        m_instance = std::make_unique<OneInstance>(place, [&program](const QString &text) { program.takeOver(text); });
    }
    program.Main(line);
    return true;
}
