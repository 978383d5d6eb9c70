#include "insertion/embeddedElement.h"

#include "widgets/controls.h"
#include "widgets/numberField.h"

#include <QComboBox>

namespace
{
constexpr int LongestSize = 32767; // what is read back is not to be cut
}

QComboBox *embedded::alignmentBox()
{
    return ui::combo(QStringLiteral("cboAlignment"),
                     {QStringLiteral("left"), QStringLiteral("right"), QStringLiteral("top"), QStringLiteral("middle"),
                      QStringLiteral("bottom"), QStringLiteral("absmiddle"), QStringLiteral("baseline")});
}

NumberField *embedded::sizeField(const QString &name)
{
    return ui::number(name, LongestSize);
}
