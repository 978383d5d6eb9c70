#pragma once

#include <QString>

/// The desktop's clipboard, as far as plain text goes.
class Clipboard
{
public:
    Clipboard() = default;
    Clipboard(const Clipboard &) = delete;
    Clipboard &operator=(const Clipboard &) = delete;
    virtual ~Clipboard() = default;

    /// The plain text on it, breaks as CR LF; nothing where it holds a list of files or a picture.
    virtual QString text() = 0;
    virtual void setText(const QString &text) = 0;
    virtual bool hasFileList() = 0;
    virtual bool hasImage() = 0;
};
