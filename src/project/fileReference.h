#pragma once

#include <QString>

struct ProgramContext;

/// The dialog that inserts a reference to a file of some kind, and its field that takes the path.
struct ReferenceDialog {
    QString form;
    QString field;
    bool operator==(const ReferenceDialog &) const = default;
};

/// By the extension of the file's name, in any case of its letters; a name without one is linked to.
ReferenceDialog referenceDialogFor(const QString &path);

/// Opens the dialog that inserts a reference to the file into the active document, the path in its field. Without a
/// document the user is told so.
void InsertFileReference(ProgramContext &context, const QString &path);
