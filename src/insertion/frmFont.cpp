#include "insertion/frmFont.h"

#include "common/mainWindow.h"
#include "insertion/attributeText.h"
#include "insertion/modColourProcesses.h"
#include "insertion/modFontTags.h"
#include "insertion/modFonts.h"
#include "widgets/colourSelection.h"
#include "widgets/themeColour.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace
{
constexpr ColourValue UnsetColour = 1;
constexpr int LongestSize = 4;
constexpr int SampleLines = 5;

QString sizeAttributes(const QString &points)
{
    bool isNumber = false;
    const int size = points.toInt(&isNumber);
    return isNumber ? pointSizeAttributes(size) : QString();
}

QString fontAttributes(const FontFields &fields)
{
    const QString colour = fields.colour == FontFields().colour ? QString() : fields.colour;
    return attributeUnlessEmpty(QStringLiteral("face"), fields.face) + sizeAttributes(fields.size) +
           attributeUnlessEmpty(QStringLiteral("color"), colour);
}

QListWidget *listOf(const QString &name, const QStringList &rows, QLineEdit *text)
{
    QListWidget *list = ui::list(name);
    list->addItems(rows);
    const auto copy = [list, text] {
        if (!list->selectedItems().isEmpty())
            text->setText(list->selectedItems().constFirst()->text());
    };
    QObject::connect(list, &QListWidget::itemSelectionChanged, text, copy);
    QObject::connect(list, &QListWidget::itemClicked, text, copy); // the same row again, once the text is another
    return list;
}
} // namespace

FontTags fontTags(const FontFields &fields)
{
    struct Style {
        bool on;
        const char *element;
    };
    const QString attributes = fontAttributes(fields);
    FontTags tags;
    if (!attributes.isEmpty())
        tags.opening = QStringLiteral("<font") + attributes + u'>';
    for (const Style &style : {Style{fields.bold, "b"}, Style{fields.italic, "i"}, Style{fields.underline, "u"},
                               Style{fields.strike, "strike"}, Style{fields.typewriter, "tt"}}) {
        if (!style.on)
            continue;
        tags.opening += QStringLiteral("<%1>").arg(QLatin1String(style.element));
        tags.closing += QStringLiteral("</%1>").arg(QLatin1String(style.element));
    }
    if (!attributes.isEmpty())
        tags.closing += QStringLiteral("</font>");
    return tags;
}

frmFont::frmFont(ProgramContext &context)
    : InsertionForm(context, {.name = QStringLiteral("frmFont"),
                              .caption = QStringLiteral("Font"),
                              .helpTopic = QStringLiteral("::/topics/using/Function_Format_Font.htm")})
{
}

void frmFont::Form_Load()
{
    clrFontColour = colourPicker(context(), QStringLiteral("clrFontColour"), [this] { showSample(); });
    clrFontColour->setUnsetColour(UnsetColour);
    setContent(ui::beside({
        ui::column({
            fontLists().stretched(),
            ui::rows({ui::row(QStringLiteral("Colour:"), clrFontColour)}),
            styleGroup(),
            sampleGroup(),
        }),
        dialogButtons(),
    }));
    showSample();
}

ui::Node frmFont::fontLists()
{
    txtFont = ui::text(QStringLiteral("txtFont"), [this] { showSample(); });
    lstFonts = listOf(QStringLiteral("lstFonts"), systemFonts(), txtFont);
    lstFonts->setAccessibleName(QStringLiteral("Fonts"));
    txtSize = ui::text(QStringLiteral("txtSize"), [this] { showSample(); });
    SetNumbersOnly(txtSize);
    txtSize->setMaxLength(LongestSize);
    lstSize = listOf(QStringLiteral("lstSize"), pointSizes(), txtSize);
    lstSize->setAccessibleName(QStringLiteral("Sizes"));
    return ui::line({
        ui::column({ui::under(QStringLiteral("Font:"), txtFont), ui::Node(lstFonts, 1)}).stretched(3),
        ui::column({ui::under(QStringLiteral("Size:"), txtSize), ui::Node(lstSize, 1)}).stretched(1),
    });
}

ui::Node frmFont::styleGroup()
{
    const auto box = [this](const char *name, const char *caption) {
        return ui::check(QLatin1String(name), QLatin1String(caption), [this] { showSample(); });
    };
    chkBold = box("chkBold", "Bold");
    chkItalic = box("chkItalic", "Italic");
    chkUnderline = box("chkUnderline", "Underline");
    chkStrike = box("chkStrike", "Strike");
    chkType = box("chkType", "Typewriter");
    return ui::group(QStringLiteral("Style"),
                     ui::line({chkBold, chkItalic, chkUnderline, chkStrike, chkType, ui::space()}));
}

ui::Node frmFont::sampleGroup()
{
    lblSample = ui::label(QStringLiteral("lblSample"), QStringLiteral("AaBbYyZz"));
    lblSample->setAlignment(Qt::AlignCenter);
    lblSample->setFixedHeight(lblSample->fontMetrics().lineSpacing() * SampleLines);
    lblSample->setMinimumWidth(1); // a large size is cut rather than the dialog stretched
    lblSample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return ui::group(QStringLiteral("Sample"), lblSample);
}

FontFields frmFont::fields() const
{
    return {.face = txtFont->text(),
            .size = txtSize->text(),
            .colour = clrFontColour->HexadecimalColour(),
            .bold = chkBold->isChecked(),
            .italic = chkItalic->isChecked(),
            .underline = chkUnderline->isChecked(),
            .strike = chkStrike->isChecked(),
            .typewriter = chkType->isChecked()};
}

void frmFont::showSample()
{
    QFont font = window()->font();
    if (chkType->isChecked())
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!txtFont->text().isEmpty())
        font.setFamilies({txtFont->text()});
    if (txtSize->text().toInt() > 0)
        font.setPointSize(txtSize->text().toInt());
    font.setBold(chkBold->isChecked());
    font.setItalic(chkItalic->isChecked());
    font.setUnderline(chkUnderline->isChecked());
    font.setStrikeOut(chkStrike->isChecked());
    lblSample->setFont(font);
    QPalette palette = window()->palette();
    if (clrFontColour->GetColour() != UnsetColour)
        palette.setColor(QPalette::WindowText, shownColour(clrFontColour->GetColour(), palette));
    lblSample->setPalette(palette);
}

std::optional<QString> frmFont::markup()
{
    m_tags = fontTags(fields());
    return m_tags.opening;
}
