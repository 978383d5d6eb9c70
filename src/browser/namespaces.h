#pragma once

/// Whether this process can sandbox others as the web engine does, with namespaces of their own. Tried all the way in a
/// child: a system may let the namespaces be made and take away what they are for, whereupon the engine would end the
/// whole program.
bool hasNamespaces();
