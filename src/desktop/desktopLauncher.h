#pragma once

#include "services/launcher.h"

/// Launches by the desktop's own means, never through a shell.
class DesktopLauncher final : public Launcher
{
public:
    bool openUrl(const QString &target) override;
    bool start(const QString &program) override;
};
