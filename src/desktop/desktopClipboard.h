#pragma once

#include "services/clipboard.h"

class DesktopClipboard final : public Clipboard
{
public:
    QString text() override;
    void setText(const QString &text) override; ///< other programs get its breaks as LF
    bool hasFileList() override;
    bool hasImage() override; ///< a picture alone: what comes with a text is a text
    QStringList files() override;
    bool offersPicture() override;
    ClipboardPicture picture() override;
};

/// Whether a text that comes with a picture is nothing but what browsers put beside one: its address in `plain`, and
/// its element in `markup`.
bool isPicturesAddress(const QString &plain, const QString &markup);
