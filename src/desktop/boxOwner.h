#pragma once

class QWidget;

/// The window that a message box or a common dialog belongs to: the one that the user works in. The help's is none of
/// them, since it is read beside the program's own windows: while it is active, the main window. Nothing if the program
/// has no window on show.
QWidget *boxOwner();
