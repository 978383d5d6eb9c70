#pragma once

#include <QString>
#include <optional>

/// The web engine ends the whole process where it cannot shut its pages in. So where that is not certain beforehand, a
/// process of its own shows a page first, and only if that went well does this one load the engine.

/// Does the work of the process that tries: the exit status if this is one, nothing in any other process. It goes
/// before all else in the main function of each program that shows pages.
std::optional<int> tryPagesIfAsked(int argc, char **argv);

/// Whether this system has rules of its own about namespaces, by which one program may do what another may not.
bool hasNamespaceRules();

/// Starts a process that tries, and waits for it: whether it showed a page. `program` is the running one but in tests.
bool showsPages(const QString &program);
