#pragma once

#include "services/services.h"

#include <memory>

/// The services of the real desktop. Needs an application object.
class DesktopServices
{
public:
    DesktopServices();
    DesktopServices(const DesktopServices &) = delete;
    DesktopServices &operator=(const DesktopServices &) = delete;
    ~DesktopServices();

    Services &services();

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};
