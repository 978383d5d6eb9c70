#pragma once

#include "services/clipboard.h"

class DesktopClipboard final : public Clipboard
{
public:
    QString text() override;
    void setText(const QString &text) override; ///< other programs get its breaks as LF
    bool hasFileList() override;
    bool hasImage() override; ///< a picture alone: what comes with a text is a text
};
