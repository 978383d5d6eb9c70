#pragma once

#include <QString>

class PageViews;

/// The web engine ends the whole process where it cannot sandbox its pages. So where that is not certain beforehand, a
/// process of its own shows a page first, and only if that went well does this one load the engine.

/// Whether this process is one that was started to try. A program that shows pages asks in its main function.
bool triesPages();
/// Does its work, under an application object: the exit status.
int tryPages(PageViews &views);

/// Whether this system has rules of its own about namespaces, by which one program may do what another may not.
bool hasNamespaceRules();

/// Starts a process that tries, and waits for it: whether it showed a page. `program` is the running one but in tests.
bool showsPages(const QString &program);
