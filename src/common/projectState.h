#pragma once

#include <functional>

/// What the exit has to know of the open site project.
struct ProjectState {
    bool ProjectChanged = false; ///< it holds changes that its file does not
    std::function<void()> save;  ///< writes the project file; nothing until there is something that can
};
