#pragma once

class QLineEdit;
class QString;
struct Services;

/// What is told of an entry's title that cannot be taken.
void tellTitleTaken(Services &services, const QString &title);
/// Selects the title, too, and gives its field the focus.
void tellInvalidTitle(Services &services, QLineEdit &field);
