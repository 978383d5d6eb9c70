#pragma once

#include "drive/script.h"
#include "services/commonDialogs.h"
#include "services/messageBoxes.h"

#include <QList>
#include <QStringList>
#include <functional>

namespace drive
{
class Referee;

/// Things that happened, in their order, each of which a script can look at once.
template <class Thing>
class Recorded
{
public:
    void add(const Thing &thing) { m_things.append(thing); }
    bool isEmpty() const { return m_things.isEmpty(); }
    const Thing &oldest() const { return m_things.front(); }
    Thing take() { return m_things.takeFirst(); }
    const QList<Thing> &all() const { return m_things; }
    void set(const QList<Thing> &things) { m_things = things; }

private:
    QList<Thing> m_things;
};

QString buttonsName(MessageButtons buttons); ///< "YesNoCancel"
QString iconName(MessageIcon icon);          ///< "exclamation"
QString answerName(MessageAnswer answer);    ///< "Yes"
std::optional<MessageAnswer> parseAnswer(const QString &name);
std::optional<MessageIcon> parseIcon(const QString &name);
std::optional<MessageButtons> parseButtons(const QString &name);

bool hasButton(MessageButtons buttons, MessageAnswer answer);

/// A box as messages tell it.
QString boxText(const MessageBox &box);

struct ShownBox {
    MessageBox box;
    int line = 0; ///< of the script, when it was shown
};

/// Answers the message boxes with what the script has queued, and keeps them for it to look at.
class ScriptedBoxes final : public MessageBoxes
{
public:
    explicit ScriptedBoxes(Referee &referee) : m_referee(referee) {}

    MessageAnswer show(const MessageBox &box) override;
    void queue(MessageAnswer answer) { m_answers.append(answer); }
    const QList<MessageAnswer> &answers() const { return m_answers; }

    /// What happens while the next box of a title is on show, which is then answered so.
    struct Block {
        Line line; ///< `when-box` with the title and the commands
        MessageAnswer answer = MessageAnswer::OK;
    };
    void queueBlock(const Block &block) { m_blocks.append(block); }
    std::function<void(const Line &)> playBlock; ///< plays the commands of a block
    std::optional<Line> unshown() const;         ///< the first block whose box never came
    QList<int> waiting() const;                  ///< the lines of the blocks whose boxes are still to come
    /// The title of the box that is on show while a block is played; empty without one.
    QString onShow() const { return m_onShow; }

    /// Takes what a box says, in a program that no script answers: boxes are left by their close box then.
    std::function<void(const QString &)> tellOnly;

    /// Answers the boxes of a free play, which are not kept; nothing leaves a box by its close box. It is set by who
    /// plays freely.
    std::function<std::optional<MessageAnswer>(const MessageBox &)> freely;

    Recorded<ShownBox> shown; ///< those not yet looked at

private:
    MessageAnswer check(MessageAnswer answer, const MessageBox &box) const;
    std::optional<Block> takeBlock(const QString &title);

    Referee &m_referee;
    QList<MessageAnswer> m_answers;
    QList<Block> m_blocks;
    QString m_onShow;
};

enum class DialogKind { Open, Save, Colour, Folder, Font, Print };
QString dialogName(DialogKind kind);
std::optional<DialogKind> parseDialogKind(const QString &name);

/// What a dialog was asked to show, by the names that scripts use.
struct ShownDialog {
    DialogKind kind = DialogKind::Open;
    QList<std::pair<QString, QString>> properties;
    std::optional<QString> property(const QString &name) const;
    QString told() const;
};

/// One queued answer to a common dialog. It answers the oldest dialog that it fits: a path an open or save dialog, a
/// cancel any.
struct DialogAnswer {
    enum class Kind { Cancel, Path, Colour, Folder, Font, Copies };
    Kind kind = Kind::Cancel;
    QString text;                   ///< path, folder, or name of the font
    std::optional<int> number = {}; ///< filter index, copies, or size of the font
    ColourValue colour = 0;
    QStringList others = {}; ///< the paths chosen beside the first
    bool fits(DialogKind dialog) const;
};

class ScriptedDialogs final : public CommonDialogs
{
public:
    explicit ScriptedDialogs(Referee &referee) : m_referee(referee) {}

    std::optional<FileDialogResult> showOpen(const FileDialogRequest &request) override;
    std::optional<FileDialogResult> showSave(const FileDialogRequest &request) override;
    std::optional<QString> showFolder(const QString &title, const QString &initialFolder) override;
    std::optional<ColourValue> showColour(ColourValue initial) override;
    std::optional<FontChoice> showFont(const FontChoice &initial) override;
    std::optional<int> showPrint() override;
    void queue(const DialogAnswer &answer) { m_answers.append(answer); }
    const QList<DialogAnswer> &answers() const { return m_answers; }
    /// The oldest answer that fits; nothing if it is a cancel, or if there is none.
    std::optional<DialogAnswer> takeQueued(DialogKind kind);

    /// Answers the dialogs of a free play, which are not kept; nothing leaves a dialog.
    std::function<std::optional<DialogAnswer>(DialogKind)> freely;

    Recorded<ShownDialog> shown;

private:
    std::optional<FileDialogResult> showFile(DialogKind kind, const FileDialogRequest &request);
    /// Keeps the dialog and takes its answer; nothing for a cancel.
    std::optional<DialogAnswer> answerTo(const ShownDialog &dialog);

    Referee &m_referee;
    QList<DialogAnswer> m_answers;
};
} // namespace drive
