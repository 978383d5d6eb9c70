#include "insertion/frmFormRadioButton.h"

#include "common/mainWindow.h"
#include "insertion/attributeText.h"
#include "insertion/inputElement.h"
#include "widgets/layout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <optional>

namespace
{
constexpr int MostTags = 100;

bool isRadio(QStringView tag)
{
    return tag.contains(QLatin1String("type=\"radio\"")) || tag.contains(QLatin1String("type=radio"));
}

/// The name of the tag that stands in `text` from `start` to `end`; nothing if it has none in double quotes.
std::optional<QString> nameOf(const QString &text, qsizetype start, qsizetype end)
{
    const QLatin1String opening("name=\"");
    const qsizetype found = QStringView(text).sliced(start, end - start).indexOf(opening);
    const qsizetype name = start + found + opening.size();
    const qsizetype quote = found < 0 ? -1 : text.indexOf(u'"', name);
    return quote < 0 ? std::nullopt : std::optional(text.sliced(name, quote - name));
}
} // namespace

QString radioMarkup(const RadioFields &fields)
{
    return inputElement(QStringLiteral("radio"), attributeUnlessEmpty(QStringLiteral("name"), fields.group) +
                                                     (fields.selected ? QStringLiteral(" checked") : QString()) +
                                                     attributeUnlessEmpty(QStringLiteral("value"), fields.value)) +
           (fields.caption.isEmpty() ? fields.value : fields.caption);
}

QStringList radioGroups(const QString &text)
{
    QStringList groups;
    qsizetype behind = 0;
    for (int tags = 0; tags < MostTags; ++tags) {
        const qsizetype start = text.indexOf(QLatin1String("<input "), behind);
        const qsizetype end = start < 0 ? -1 : text.indexOf(u'>', start);
        if (end < 0)
            break;
        const std::optional<QString> name = nameOf(text, start, end);
        if (name && isRadio(QStringView(text).sliced(start, end - start)) && !groups.contains(*name))
            groups.append(*name);
        behind = end + 1;
    }
    return groups;
}

frmFormRadioButton::frmFormRadioButton(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFormRadioButton"),
                              .caption = QStringLiteral("Insert Radio Button"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Insert_Form_Radio.htm")})
{
}

void frmFormRadioButton::Form_Load()
{
    cboName = ui::combo(QStringLiteral("cboName"));
    txtValue = ui::text(QStringLiteral("txtValue"));
    txtCaption = ui::text(QStringLiteral("txtCaption"));
    chkSelected = ui::check(QStringLiteral("chkSelected"), QStringLiteral("&Selected"));
    setContent(ui::beside({
        ui::rows({
            ui::row(QStringLiteral("Group Name:"), cboName),
            ui::row(QStringLiteral("Value:"), txtValue),
            ui::row(QStringLiteral("Caption:"), txtCaption),
            ui::row({}, chkSelected),
        }),
        dialogButtons(),
    }));
    if (const Document *document = frmMdi().activeDocument())
        ui::addRows(*cboName, radioGroups(document->txtEdit().Text()));
}

std::optional<QString> frmFormRadioButton::markup()
{
    return radioMarkup({.group = cboName->currentText(),
                        .value = txtValue->text(),
                        .caption = txtCaption->text(),
                        .selected = chkSelected->isChecked()});
}
