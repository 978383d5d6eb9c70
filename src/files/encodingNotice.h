#pragma once

#include "common/document.h"
#include "services/messageBoxes.h"

#include <functional>

/// What is told and asked where a document's text has no place in the encoding that its file is in.

/// The key of the notice below.
QString encodingNoticeKey();

/// Asked before the save: the text does not fit the encoding that the page names.
MessageBox utf8Question(const QString &text, const FileFormat &wanted);

/// Told above the text after a save that went to UTF-8 instead of the encoding wanted. A page can write the characters
/// as references, or name its new encoding; a style sheet or script can not.
Notice savedAsUtf8Notice(const QString &path, const QString &text, const FileFormat &wanted,
                         const std::function<void()> &writeReferences, const std::function<void()> &nameUtf8);
