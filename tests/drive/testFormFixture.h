#pragma once

#include "common/programState.h"
#include "controlAdapter.h"
#include "desktop/desktopServices.h"
#include "forms/eventModalLoop.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/timer.h"
#include "testForm.h"
#include "unit/support/servicesOver.h"
#include "widgets/screenPointer.h"

#include <QRegularExpression>
#include <gmock/gmock.h>

namespace drive
{
inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// Leaves every dialog but the colour dialog, which gives `colour`.
class ColourAnswer final : public CommonDialogs
{
public:
    std::optional<FileDialogResult> showOpen(const FileDialogRequest &) override { return {}; }
    std::optional<FileDialogResult> showSave(const FileDialogRequest &) override { return {}; }
    std::optional<QString> showFolder(const QString &, const QString &) override { return {}; }
    std::optional<ColourValue> showColour(ColourValue) override { return colour; }
    std::optional<FontChoice> showFont(const FontChoice &) override { return {}; }
    std::optional<int> showPrint() override { return {}; }

    std::optional<ColourValue> colour;
};

/// The test form on show, with its controls by name.
class TestFormTest : public testing::Test
{
protected:
    TestFormTest() { form.Show(); }
    ~TestFormTest() override { form.discard(); }

    QObject &control(const char *name)
    {
        QObject *found = form.control(str(name));
        if (!found)
            throw std::invalid_argument(name);
        return *found;
    }

    QString read(const char *name, const char *property)
    {
        return readProperty(control(name), str(property)).value_or(str("(no such property)"));
    }

    void turnTo(const char *page) { EXPECT_TRUE(pick(control("tabPages"), str(page)).done); }

    /// What the form's handlers have recorded since the last call.
    QStringList events()
    {
        QStringList lines = read("txtEvents", "Text").split(str("\r\n"), Qt::SkipEmptyParts);
        return lines.mid(std::exchange(m_seen, lines.size()));
    }
    /// The same, without what tells of the focus.
    QStringList deeds() { return events().filter(QRegularExpression(str("^(?!.*(Focus|Activate|Deactivate)$)"))); }

    ColourAnswer dialogs;
    EventModalLoop modalLoop;
    DesktopServices desktop;
    /// The services of the desktop, with dialogs that are answered.
    Services services = servicesOver(
        desktop.services(),
        {.commonDialogs = &dialogs, .modalLoop = &modalLoop, .appPath = QString(), .statePath = QString()});
    FormRuntime forms;
    ProgramState state;
    ScreenPointer pointer;
    ProgramContext context{.services = services, .forms = forms, .state = state, .screenPointer = pointer};
    frmTestControls form{context};

private:
    qsizetype m_seen = 0;
};
} // namespace drive
