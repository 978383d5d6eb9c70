#pragma once

#include "services/modalLoop.h"

/// Waits by running the desktop's event loop.
class EventModalLoop final : public ModalLoop
{
public:
    void run(Form &form) override;
};
