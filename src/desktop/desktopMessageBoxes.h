#pragma once

#include "services/messageBoxes.h"

/// Message boxes as modal windows of the desktop.
class DesktopMessageBoxes final : public MessageBoxes
{
public:
    MessageAnswer show(const MessageBox &box) override;
};
