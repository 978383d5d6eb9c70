#pragma once

#include <QStringList>

class QComboBox;
struct ProgramContext;

/// The two lists of the open project that a dialog offers paths from.
enum class ProjectFiles {
    Images = 0, ///< the pictures among the other files
    Pages = 1,  ///< the pages among the editor files
};

/// Adds the open project's files of that kind to the combo's list, by their full paths and in the project's order.
/// Without a project nothing is added.
void FillProjectFileList(ProgramContext &context, ProjectFiles kind, QComboBox &combo);
