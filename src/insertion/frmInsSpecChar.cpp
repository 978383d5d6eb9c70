#include "insertion/frmInsSpecChar.h"

#include "common/habitEffects.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/modLaunchHTMLHelp.h"
#include "widgets/characterGrid.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QPushButton>

namespace
{
constexpr int FirstCode = 32;
constexpr int LastCode = 255;
constexpr int Columns = 19;
const QString HelpTopic = QStringLiteral("::/topics/using/Function_Insert_SpecialChar.htm");

constexpr bool hasEntity(int code)
{
    return (code >= FirstCode && code < 127) || (code > 160 && code <= LastCode);
}

QString gridCharacters()
{
    QString characters;
    for (int code = FirstCode; code <= LastCode; ++code)
        characters += hasEntity(code) ? QChar(code) : CharacterGrid::NoCharacter;
    return characters;
}

QLabel *largeLabel(const QString &name)
{
    QLabel *label = ui::label(name, {});
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    label->setFont(font);
    return label;
}
} // namespace

QString characterEntity(QChar character)
{
    constexpr int FirstUnclosed = 252;
    const int code = character.unicode();
    if (!hasEntity(code))
        return {};
    if (code == FirstCode)
        return QStringLiteral("$#160;");
    return QStringLiteral("&#%1").arg(code) + (code < FirstUnclosed ? QStringLiteral(";") : QString());
}

QString rightCharacterEntity(QChar character)
{
    if (!hasEntity(character.unicode()))
        return {};
    if (character == u' ')
        return QStringLiteral("&nbsp;");
    return QStringLiteral("&#%1;").arg(character.unicode());
}

frmInsSpecChar::frmInsSpecChar(ProgramContext &context) : DialogForm(context, QStringLiteral("frmInsSpecChar"))
{
    setCaption(QStringLiteral("Insert Character Entity"));
}

void frmInsSpecChar::Form_Load()
{
    lblCharacter = largeLabel(QStringLiteral("lblCharacter"));
    lblDecChr = largeLabel(QStringLiteral("lblDecChr"));
    grdCharacters = ui::characterGrid(
        QStringLiteral("grdCharacters"), [this] { grdCharacters_Click(); }, [this] { cmdInsert_Click(); });
    grdCharacters->setAccessibleName(QStringLiteral("Characters"));
    QPushButton *cmdInsert =
        ui::button(QStringLiteral("cmdInsert"), QStringLiteral("&Insert"), [this] { cmdInsert_Click(); });
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { Unload(); });
    QPushButton *cmdHelp =
        ui::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"), [this] { OpenHelpTopic(context(), HelpTopic); });
    setContent(ui::beside({
        ui::column(
            {ui::Node(grdCharacters, 1), ui::rows({ui::row(QStringLiteral("Selected Character:"), lblCharacter),
                                                   ui::row(QStringLiteral("Selected Character Code:"), lblDecChr)})}),
        ui::buttons({cmdInsert, cmdClose, cmdHelp}),
    }));
    setDefaultButton(cmdInsert);
    setCancelButton(cmdClose);
    grdCharacters->setCharacters(gridCharacters(), Columns);
}

void frmInsSpecChar::grdCharacters_Click()
{
    const QString character = grdCharacters->selectedCharacter();
    lblCharacter->setText(character);
    const auto entity = writesTodaysMarkup(context().state.habits) ? rightCharacterEntity : characterEntity;
    lblDecChr->setText(character.isEmpty() ? QString() : entity(character[0]));
}

/// A cell without an entity inserts nothing: what is selected in the document stays.
void frmInsSpecChar::cmdInsert_Click()
{
    Document *document = frmMdi().activeDocument();
    if (document && !lblDecChr->text().isEmpty())
        document->txtEdit().setSelText(lblDecChr->text());
}
