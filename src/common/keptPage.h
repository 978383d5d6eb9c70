#pragma once

#include "common/encodings.h"
#include "common/fileStamp.h"

#include <QByteArray>
#include <QString>
#include <optional>

/// A document's unsaved text, and what is needed to bring the document back as it was.
struct KeptPage {
    qint32 order = 0; ///< where it stood among the documents of its session: a higher one came later
    QString path;     ///< the file it was opened from or saved to; empty for none
    bool newDoc = false;
    bool unicode = false; ///< it is saved as UTF-16
    FileFormat format;
    Encoding plainEncoding = Encoding::Utf8;
    bool mixedLineEnds = false;
    QString internetOrigin;
    QString text;
    qint64 selStart = 0; ///< counted from 0
    qint64 selLength = 0;
    std::optional<FileStamp> stamp; ///< of the file as the text was read from it or written to it
    QByteArray fileDigest = {};     ///< digestOf() its bytes; empty where they could not be looked at
    bool changed = true;            ///< it is dirty: its file, if any, does not hold its text
    bool startsAnew = false;        ///< the program was started anew on purpose, which is no news to the user
};

/// The page as bytes that tell whether they are whole.
QByteArray keptPageBytes(const KeptPage &page);
/// What keptPageBytes() made; nothing for bytes that are not, were cut short, or were changed.
std::optional<KeptPage> keptPageOf(const QByteArray &bytes);

/// Tells one content of a file from another.
QByteArray digestOf(const QByteArray &bytes);
/// Whether a kept page's digest is of these bytes. Earlier versions kept SHA-256; an empty one is of none.
bool isDigestOf(const QByteArray &digest, const QByteArray &bytes);
