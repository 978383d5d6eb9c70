#pragma once

#include <QIcon>
#include <functional>

/// An icon that is made when somebody first draws it or asks about it. Making one by a file may load the readers of all
/// kinds of pictures, and most icons that a style is asked for are never on show.
QIcon lateIcon(std::function<QIcon()> make);
