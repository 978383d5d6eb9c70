#include "shell/frmMoreOptions.h"

#include "common/mainWindow.h"
#include "document/modDocument.h"
#include "forms/modLaunchHTMLHelp.h"
#include "services/editorSettings.h"
#include "services/fileClasses.h"
#include "services/services.h"
#include "services/settings.h"
#include "shell/habitChoice.h"
#include "widgets/layout.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"
#include "widgets/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace
{
constexpr int DesktopFontRow = 0;
constexpr int TwoDigits = 2;

QStringList fontRows()
{
    QStringList rows{QStringLiteral("(the desktop's)")};
    for (const QString &family : QFontDatabase::families())
        if (QFontDatabase::isFixedPitch(family) && !QFontDatabase::isPrivateFamily(family))
            rows.append(family);
    return rows;
}

constexpr int CharactersShown = 11; // as wide as capital letters

QStringList encodingRows()
{
    return {encodingName({Encoding::Utf8}), encodingName({Encoding::Utf8Bom}), encodingName({Encoding::Windows1252})};
}

QStringList lineEndRows()
{
    return {lineEndName(LineEnd::CrLf), lineEndName(LineEnd::Lf)};
}

const QStringList &themes()
{
    static const QStringList names{theme::Desktop, theme::Light, theme::Dark};
    return names;
}

/// The number in the field, cut to its limits.
int limited(const NumberField &field, int least, int most)
{
    return std::clamp(field.text().toInt(), least, most);
}

/// Selects the row; a family that is not in the list, since it is no longer installed, gets one.
void selectFont(QComboBox &fonts, const QString &family)
{
    if (!family.isEmpty() && fonts.findText(family) < 0)
        fonts.addItem(family);
    fonts.setCurrentIndex(family.isEmpty() ? DesktopFontRow : fonts.findText(family));
}
} // namespace

frmMoreOptions::frmMoreOptions(ProgramContext &context) : Form(context, QStringLiteral("frmMoreOptions"))
{
    setCaption(QStringLiteral("More Options"));
}

void frmMoreOptions::Form_Load()
{
    buildControls();
    showSettings();
}

void frmMoreOptions::buildControls()
{
    cboEditorFont = ui::dropList(QStringLiteral("cboEditorFont"), fontRows());
    txtEditorFontSize = ui::number(QStringLiteral("txtEditorFontSize"), TwoDigits);
    txtTabWidth = ui::number(QStringLiteral("txtTabWidth"), TwoDigits);
    txtIndentWidth = ui::number(QStringLiteral("txtIndentWidth"), TwoDigits);
    chkIndentWithTabs = ui::check(QStringLiteral("chkIndentWithTabs"), QStringLiteral("Indent with ta&bs"));
    m_habits = new HabitChoice(services().settings, window());
    cboLineEnd = ui::dropList(QStringLiteral("cboLineEnd"), lineEndRows());
    cboEncoding = ui::dropList(QStringLiteral("cboEncoding"), encodingRows());
    cboTheme = ui::dropList(QStringLiteral("cboTheme"),
                            {QStringLiteral("As the desktop"), QStringLiteral("Light"), QStringLiteral("Dark")});
    for (QComboBox *list : {cboEditorFont, cboEncoding}) { // whatever long names there are
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        list->setMinimumContentsLength(CharactersShown);
    }
    SpinButton *updSize =
        ui::spin(QStringLiteral("updEditorFontSize"), txtEditorFontSize, SmallestFontSize, LargestFontSize);
    SpinButton *updTabs = ui::spin(QStringLiteral("updTabWidth"), txtTabWidth, SmallestTabWidth, LargestTabWidth);
    SpinButton *updIndent =
        ui::spin(QStringLiteral("updIndentWidth"), txtIndentWidth, SmallestTabWidth, LargestTabWidth);
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Options.htm"));
    });
    const ui::Node editor = ui::rows({
        ui::row(QStringLiteral("&Font:"), cboEditorFont),
        ui::row(QStringLiteral("Font &size:"), ui::counted(txtEditorFontSize, updSize)),
        ui::row(QStringLiteral("&Tab width as shown:"), ui::counted(txtTabWidth, updTabs)),
        ui::row(QStringLiteral("&Indentation of today:"), ui::counted(txtIndentWidth, updIndent)),
        ui::row(QString(), chkIndentWithTabs),
    });
    const ui::Node documents = ui::rows({
        ui::row(QStringLiteral("&Line end:"), cboLineEnd),
        ui::row(QStringLiteral("&Encoding:"), cboEncoding),
    });
    const ui::Node windows = ui::rows({ui::row(QStringLiteral("T&heme:"), cboTheme)});
    ui::alignRows({editor, documents, windows});
    QPushButton *cmdFileClasses =
        ui::button(QStringLiteral("cmdFileClasses"), QStringLiteral("Open &Pages With Tagwrighter"),
                   [this] { services().fileClasses.registerAll(); });
    setContent(ui::beside({
        ui::column({
            ui::group(QStringLiteral("Editor"), editor),
            ui::group(QStringLiteral("New documents"), documents),
            ui::group(QStringLiteral("Windows"), windows),
            ui::group(QStringLiteral("Desktop"), ui::column({cmdFileClasses})),
            ui::space(),
        }),
        ui::column({m_habits->controls(), ui::space()}),
        ui::buttons({cmdOK, cmdCancel, cmdHelp}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmMoreOptions::showSettings()
{
    SettingsStore &store = services().settings;
    const FileFormat format = formatOfNewDocument(context());
    selectFont(*cboEditorFont, settings::read(store, settings::EditorFont));
    txtEditorFontSize->setText(QString::number(QFontInfo(editorFont(store)).pointSize()));
    txtTabWidth->setText(QString::number(tabWidth(store)));
    txtIndentWidth->setText(QString::number(indentStyle(store).width));
    chkIndentWithTabs->setChecked(indentStyle(store).tabs);
    m_habits->show();
    cboLineEnd->setCurrentIndex(cboLineEnd->findText(lineEndName(format.lineEnd)));
    cboEncoding->setCurrentIndex(cboEncoding->findText(encodingName(format)));
    const qsizetype row = themes().indexOf(settings::read(store, settings::Theme));
    cboTheme->setCurrentIndex(static_cast<int>(std::max<qsizetype>(row, 0)));
}

void frmMoreOptions::cmdOK_Click()
{
    SettingsStore &store = services().settings;
    const bool desktopFont = cboEditorFont->currentIndex() == DesktopFontRow;
    settings::write(store, settings::EditorFont, desktopFont ? QString() : cboEditorFont->currentText());
    settings::write(store, settings::EditorFontSize,
                    QString::number(limited(*txtEditorFontSize, SmallestFontSize, LargestFontSize)));
    settings::write(store, settings::TabWidth,
                    QString::number(limited(*txtTabWidth, SmallestTabWidth, LargestTabWidth)));
    settings::write(store, settings::IndentWidth,
                    QString::number(limited(*txtIndentWidth, SmallestTabWidth, LargestTabWidth)));
    settings::writeBoolean(store, settings::IndentWithTabs, chkIndentWithTabs->isChecked());
    m_habits->store();
    settings::write(store, settings::NewLineEnd, cboLineEnd->currentText());
    settings::write(store, settings::NewEncoding, cboEncoding->currentText());
    settings::write(store, settings::Theme, themes()[cboTheme->currentIndex()]);
    applyToAll();
    Unload();
}

void frmMoreOptions::applyToAll()
{
    theme::apply(settings::read(services().settings, settings::Theme));
    frmMdi().takeOverHabits(); // and the editor's settings with them
}
