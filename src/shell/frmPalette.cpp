#include "shell/frmPalette.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "widgets/layout.h"
#include "widgets/listView.h"
#include "widgets/rowStep.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace
{
constexpr QSize LeastSize(560, 360);
} // namespace

frmPalette::frmPalette(ProgramContext &context) : Form(context, QStringLiteral("frmPalette")) {}

void frmPalette::ShowContents(const Contents &contents)
{
    Unload();
    m_contents = contents;
    Show();
    txtPalette->setFocus();
}

void frmPalette::Form_Load()
{
    setCaption(m_contents.caption);
    txtPalette = ui::text(QStringLiteral("txtPalette"), [this] { txtPalette_Change(); });
    txtPalette->setPlaceholderText(QStringLiteral("A few letters"));
    txtPalette->setAccessibleName(txtPalette->placeholderText());
    lstPalette = ui::listView(
        QStringLiteral("lstPalette"), {m_contents.textTitle, m_contents.detailTitle},
        {.selection = {}, .dblClick = [this](int) { choose(); }, .enter = [this](int) { choose(); }, .tick = {}});
    lstPalette->setAccessibleName(QStringLiteral("What fits"));
    lstPalette->setTextElideMode(Qt::ElideMiddle); // what tells folders apart stands at their ends
    for (QWidget *control : {static_cast<QWidget *>(txtPalette), static_cast<QWidget *>(lstPalette)})
        ui::onKeyDown(control, [this](const QKeyEvent &key) { return keyDown(key); });
    setContent(ui::column({txtPalette, ui::Node(lstPalette, 1)}));
    window()->setMinimumSize(LeastSize);
    txtPalette_Change();
}

void frmPalette::Form_Unload()
{
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}

void frmPalette::Form_Deactivate()
{
    Unload();
}

void frmPalette::txtPalette_Change()
{
    m_shown = paletteMatches(txtPalette->text(), m_contents.entries);
    lstPalette->clearRows();
    for (const qsizetype entry : std::as_const(m_shown)) {
        ListRow row;
        row.text = m_contents.entries[entry].text;
        row.subItems = {m_contents.entries[entry].detail};
        lstPalette->addRow(row);
    }
    lstPalette->fitFirstColumn();
    if (!m_shown.isEmpty())
        lstPalette->selectRow(0);
}

bool frmPalette::keyDown(const QKeyEvent &key)
{
    if (const int step = rowStep(key.key())) {
        moveSelection(step);
        return true;
    }
    switch (key.key()) {
    case Qt::Key_Escape:
        Unload();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        return true;
    default:
        return false;
    }
}

/// The text keeps the focus, so that one can go on typing.
void frmPalette::moveSelection(int rows)
{
    if (m_shown.isEmpty())
        return;
    const int row = std::clamp(lstPalette->selectedRow().value_or(0) + rows, 0, int(m_shown.size()) - 1);
    lstPalette->selectRow(row);
    lstPalette->scrollToItem(lstPalette->topLevelItem(row));
}

void frmPalette::choose()
{
    const std::optional<int> row = lstPalette->selectedRow();
    if (!row)
        return;
    const std::function<void()> run = m_contents.entries[m_shown[*row]].run;
    Unload();
    run();
}
