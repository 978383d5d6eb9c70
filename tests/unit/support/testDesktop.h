#pragma once

#include "common/programState.h"
#include "desktop/desktopServices.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "widgets/screenPointer.h"

#include <QCoreApplication>
#include <QTemporaryDir>

/// The real desktop over an empty home of its own, and what forms need besides.
class TestDesktop
{
public:
    TestDesktop() : m_services(servicesAt(m_home.path())) {}

    ProgramContext &context() { return m_context; }
    FormRuntime &forms() { return m_forms; }

    /// Runs what waits in the queue, the deletion of windows too.
    static void settle()
    {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

private:
    static std::unique_ptr<DesktopServices> servicesAt(const QString &home)
    {
        qputenv("XDG_CONFIG_HOME", home.toUtf8());
        qputenv("XDG_DATA_HOME", home.toUtf8());
        return std::make_unique<DesktopServices>();
    }

    QTemporaryDir m_home;
    std::unique_ptr<DesktopServices> m_services;
    FormRuntime m_forms;
    ProgramState m_state;
    ScreenPointer m_pointer;
    ProgramContext m_context{
        .services = m_services->services(), .forms = m_forms, .state = m_state, .screenPointer = m_pointer};
};
