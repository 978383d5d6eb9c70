#pragma once

#include <QStringList>

class NumberField;
class QComboBox;

/// What the dialogs for applets and objects share.
namespace embedded
{
/// `cboAlignment` with the places that an embedded element can take in a line or beside it.
QComboBox *alignmentBox();
/// A field for a size in pixels. It is long enough for whatever a page has in that place.
NumberField *sizeField(const QString &name);
} // namespace embedded
