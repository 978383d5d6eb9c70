#include "insertion/insertionForm.h"

#include "common/fileBook.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "forms/modLaunchHTMLHelp.h"
#include "insertion/writtenMarkup.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/layout.h"
#include "widgets/pathCompletion.h"
#include "widgets/screenPointer.h"

#include <QPushButton>

namespace
{
constexpr int CharactersOfAPath = 40;
} // namespace

InsertionForm::InsertionForm(ProgramContext &context, const Design &design)
    : DialogForm(context, design.name), m_design(design)
{
    setCaption(design.caption);
}

void InsertionForm::prepareLoad()
{
    DialogForm::prepareLoad();
    setCaption(m_design.caption);
    if (book().dialogsBeginAnew())
        forgetLastUse();
}

const MarkupBook &InsertionForm::book() const
{
    return markupBook(context().state.habits);
}

bool InsertionForm::lacksSource(const QString &image) const
{
    return image.isEmpty() && (book().imagesNeedSource() || fileBook(context().state.habits).imagesNeedSource);
}

ui::Node InsertionForm::dialogButtons()
{
    m_ok = ui::button(m_design.okName, m_design.okCaption, [this] { confirm(); });
    QPushButton *cancelButton = ui::button(m_design.cancelName, QStringLiteral("Cancel"), [this] { cancel(); });
    QList<QPushButton *> all{m_ok, cancelButton};
    if (!m_design.helpTopic.isEmpty()) {
        const auto help = [this] { OpenHelpTopic(context(), m_design.helpTopic); };
        all.append(ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), help));
    }
    setDefaultButton(m_ok);
    setCancelButton(cancelButton);
    return ui::buttons(all);
}

void InsertionForm::confirm()
{
    showBusy(true);
    if (const std::optional<QString> text = markup())
        insert(*text);
    showBusy(false);
}

void InsertionForm::insert(const QString &text)
{
    if (Document *document = frmMdi().activeDocument()) {
        TextSurface &edit = document->txtEdit();
        const std::optional<QString> behind = closing();
        const auto [front, back] = writtenAround(context(), {.opening = text, .closing = behind.value_or(QString())});
        edit.setSelText(front + (behind ? edit.SelText() : QString()) + back);
        if (!back.isEmpty())
            edit.setSelStart(edit.SelStart() - back.size());
        afterInsertion(edit);
    }
    Unload();
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}

std::optional<TagUnderCaret> InsertionForm::takeTag(TagReader read)
{
    Document *document = frmMdi().activeDocument();
    if (!document)
        return std::nullopt;
    TextSurface &edit = document->txtEdit();
    std::optional<TagUnderCaret> tag = read(edit.Text(), edit.SelStart(), edit.SelLength());
    if (tag) {
        tag = book().tagForFields(*tag, read, edit.Text());
        edit.setSelStart(tag->start);
        edit.setSelLength(tag->length);
    }
    return tag;
}

QString InsertionForm::documentFolder() const
{
    const Document *document = frmMdi().activeDocument();
    return document ? folderOf(document->DocSavePath) : QString();
}

void InsertionForm::takesPath(QWidget *box)
{
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * CharactersOfAPath);
    new PathCompletion(box, services().files, [this] { return documentFolder(); });
}

std::nullopt_t InsertionForm::refused(const QString &message, QWidget *field)
{
    showBusy(false); // the box waits for the user, who is not to wait for it
    services().messageBoxes.show({QStringLiteral("Error!"), message, MessageIcon::Exclamation, MessageButtons::OK});
    focusOn(field);
    return std::nullopt;
}

void InsertionForm::showBusy(bool busy)
{
    context().screenPointer.setMousePointer(busy ? PointerShape::ArrowHourglass : PointerShape::Default);
}

void InsertionForm::focusOn(QWidget *control)
{
    if (control->isVisible() && control->isEnabled())
        control->setFocus(Qt::OtherFocusReason);
}
