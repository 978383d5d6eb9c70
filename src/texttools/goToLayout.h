#pragma once

#include "widgets/layout.h"

class NumberField;
struct Services;

/// What the two windows that go to a place in the text are made of.
struct GoToControls {
    NumberField *number;
    QPushButton *cmdGoTo;
    QPushButton *cmdCancel;
    ui::Node content;
};
GoToControls goToControls(const QString &fieldName, const QString &label, const ui::Handler &go,
                          const ui::Handler &cancel);

/// Tells that the document has not so many lines, or characters, as the field says.
void tellExceeded(Services &services, const QString &title, NumberField &field, const QString &counted);
