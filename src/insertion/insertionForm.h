#pragma once

#include "forms/dialogForm.h"
#include "insertion/markupBook.h"

#include <functional>
#include <optional>

class QPushButton;
class QWidget;
class TextSurface;
namespace ui
{
class Node;
}

/// A dialog that collects a few fields and puts one piece of markup in place of the active document's selection.
///
/// A form of this kind consists of a struct of its fields, a pure function from them to markup, and a class that builds
/// the controls (`Form_Load`) and reads them back (`markup`); all else is done here:
///
///     frmInsList::frmInsList(ProgramContext &context)
///         : InsertionForm(context, {.name = QStringLiteral("frmInsList"), .caption = …, .helpTopic = …}) {}
///
///     void frmInsList::Form_Load()
///     {
///         setContent(ui::beside({ui::rows({…}), dialogButtons()}));
///     }
class InsertionForm : public DialogForm
{
    Q_OBJECT
public:
    struct Design {
        QString name;
        QString caption;
        QString helpTopic = {}; ///< "::/topics/…"; a dialog without one has no Help button
        QString okName = QStringLiteral("cmdOK");
        QString okCaption = QStringLiteral("&OK");
        QString cancelName = QStringLiteral("cmdCancel");
    };

    InsertionForm(ProgramContext &context, const Design &design);

    /// How a dialog that edits what it finds reads the element around the caret of a text: see ReadTagUnderCaret.
    using TagReader = MarkupBook::TagReader;

protected:
    void prepareLoad() override;

    const MarkupBook &book() const; ///< that holds now
    /// Whether an image has to have its file named, and has not.
    bool lacksSource(const QString &image) const;

    /// Applies the path rules where the dialog has them and builds the markup from the fields. Nothing keeps the dialog
    /// open, as where a field is missing; then the user has been told.
    virtual std::optional<QString> markup() = 0;
    /// For a dialog whose markup goes in front of the selection: what goes behind it, where the caret then stands.
    /// Asked once the markup is made; nothing where the markup takes the selection's place.
    virtual std::optional<QString> closing() const { return std::nullopt; }
    /// Drops what outlives the dialog and would go into what it writes next, where each use is to begin anew.
    virtual void forgetLastUse() {}

    /// Runs once the markup stands in the document, for a dialog that writes at another place, too.
    virtual void afterInsertion(TextSurface &) {}

    /// OK, Cancel and Help, one below the other; OK is the default button and Escape presses Cancel. Once a load.
    ui::Node dialogButtons();
    QPushButton *okButton() const { return m_ok; }

    /// The element around the document's caret, which is selected from now on, so that the markup takes its place.
    /// Nothing, and nothing selected, where there is none.
    std::optional<TagUnderCaret> takeTag(TagReader read);

    /// The folder of the active document's file, with its final separator, from which relative paths start; empty if
    /// it has none.
    QString documentFolder() const;
    /// Makes a box for a path of a text box or an editable combo: wide enough, and completing the names of files.
    void takesPath(QWidget *box);

    /// For `markup`, where a field is missing: tells it in a box and puts the focus into the field.
    std::nullopt_t refused(const QString &message, QWidget *field);
    /// Shows by the mouse pointer that the dialog is at work, or no longer.
    void showBusy(bool busy);
    /// Gives the control the focus if it can have it now, which is never before the dialog is on show.
    static void focusOn(QWidget *control);

    /// What OK does: the markup goes in place of the selection, the dialog is unloaded and the document has the focus.
    void confirm();
    /// The end of every insertion: `text` in place of the selection, or in front of it, then the dialog goes and the
    /// document takes the focus. The caret stands behind the text, or behind what was selected.
    void insert(const QString &text);

private:
    Design m_design;
    QPushButton *m_ok = nullptr;
};
