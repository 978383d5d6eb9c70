// The rules that the user edits by, as the main window keeps them, and the line that offers the choice.
#include "common/programState.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiCommands.h"
#include "frame/habitsNotice.h"
#include "frame/startFaults.h"
#include "services/habits.h"
#include "services/services.h"
#include "texttools/frmPageCheck.h"

#include <algorithm>
#include <utility>

void frmMdi::takeOverHabits()
{
    context().state.habits = readHabits(services().settings);
    m_commands->followHabits();
    if (auto *pageCheck = dynamic_cast<frmPageCheck *>(context().forms.find(QStringLiteral("frmPageCheck"))))
        pageCheck->takeOverHabits();
    const bool chosen = habitsAreChosen(services().settings);
    for (Document *document : openDocuments()) {
        document->applyEditorSettings();
        if (chosen)
            document->notices.remove(habitsNoticeKey());
    }
}

void frmMdi::documentInFront()
{
    if (!context().state.AlreadyStarted) // a start opens documents that do not stay in front
        return;
    tellStartFaults();
    offerHabits();
}

/// The first document that stays tells what is wrong with this start, once.
void frmMdi::tellStartFaults()
{
    Document *document = activeDocument();
    if (!document || std::exchange(m_startFaultsTold, true))
        return;
    for (const QString &fault : startFaults(services()))
        document->notices.put({fault, NoticeKind::Other, fault, {{QStringLiteral("OK")}}});
}

/// One document tells it at a time, until the user has chosen.
void frmMdi::offerHabits()
{
    Document *document = activeDocument();
    if (!document || habitsAreChosen(services().settings))
        return;
    const QList<Document *> open = openDocuments();
    if (std::any_of(open.begin(), open.end(), [](Document *one) { return one->notices.holds(habitsNoticeKey()); }))
        return;
    document->notices.put(
        habitsNotice([this](bool today) { chooseHabits(today); },
                     [this] { OpenHelpTopic(context(), QStringLiteral("::/topics/using/Habits.htm")); }));
}

void frmMdi::chooseHabits(bool today)
{
    ::chooseHabits(services().settings, today);
    takeOverHabits();
}
