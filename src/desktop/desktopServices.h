#pragma once

#include "services/services.h"

#include <memory>

/// The services of the real desktop. Needs an application object.
class DesktopServices
{
public:
    /// `dialogs` takes the place of the desktop's own dialogs where nobody is there to answer them.
    explicit DesktopServices(CommonDialogs *dialogs = nullptr);
    DesktopServices(const DesktopServices &) = delete;
    DesktopServices &operator=(const DesktopServices &) = delete;
    ~DesktopServices();

    Services &services();

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};
