#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A picture as the bytes of a file; without any, there is none.
struct ClipboardPicture {
    QString kind; ///< the ending of such files: "png"
    QByteArray bytes;
};

/// The desktop's clipboard: plain text, and what of pictures and files a page has a use for.
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

    /// The files of this machine on it, as native paths.
    virtual QStringList files() { return {}; }
    /// Whether it holds a picture that was copied as one: with no text, or none but the picture's own address.
    virtual bool offersPicture() { return false; }
    /// The picture on it, whatever stands beside: as it was drawn or painted if there is a choice, else as it is.
    virtual ClipboardPicture picture() { return {}; }
};
