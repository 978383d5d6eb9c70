#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// What a wizard leaves when it ends: header lines, an empty line, and the markup up to the end.
struct WizardOutput {
    QString data;          ///< empty if the user left the wizard; breaks are CR LF
    bool toNewDoc = false; ///< the header `WizardDataToNewDoc: True`
};

/// The most that a wizard may write, in bytes.
constexpr qsizetype LargestWizardOutput = 16 * 1024 * 1024;

/// Reads what a wizard wrote: UTF-8, with or without a byte order mark, else Windows-1252. One line end at the very end
/// is the line's, not the data's. Nothing if it is not of that form: too long, with a NUL in it, with a line before the
/// empty one that is no header, or with another value than True or False.
std::optional<WizardOutput> readWizardOutput(const QByteArray &bytes);
