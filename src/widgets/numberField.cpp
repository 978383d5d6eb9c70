#include "widgets/numberField.h"

#include "widgets/controls.h"

#include <algorithm>

NumberField::NumberField(int maxLength, QWidget *parent) : QLineEdit(parent)
{
    setMaxLength(maxLength);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    SetNumbersOnly(this);
}

QSize NumberField::sizeHint() const
{
    const QSize usual = QLineEdit::sizeHint();
    const int usualText = fontMetrics().horizontalAdvance(u'x') * 17; // what the base class makes room for
    const int digits = fontMetrics().horizontalAdvance(u'0') * std::clamp(maxLength() + 1, 4, 12);
    return QSize(usual.width() - usualText + digits, usual.height());
}
