#include "insertion/frmInsSpecChar.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/modLaunchHTMLHelp.h"
#include "insertion/characterEntity.h"
#include "insertion/markupBook.h"
#include "widgets/characterGrid.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QPushButton>

namespace
{
constexpr int Columns = 19;
const QString HelpTopic = QStringLiteral("::/topics/using/Function_Insert_SpecialChar.htm");

QString gridCharacters()
{
    QString characters;
    for (int code = FirstEntityCode; code <= LastEntityCode; ++code)
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
    const MarkupBook &book = markupBook(context().state.habits);
    lblDecChr->setText(character.isEmpty() ? QString() : book.entity(character[0]));
}

/// A cell without an entity inserts nothing: what is selected in the document stays.
void frmInsSpecChar::cmdInsert_Click()
{
    Document *document = frmMdi().activeDocument();
    if (document && !lblDecChr->text().isEmpty())
        document->txtEdit().setSelText(lblDecChr->text());
}
