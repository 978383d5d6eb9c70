#include "drive/answers.h"

#include "drive/referee.h"
#include "drive/told.h"

#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <span>

namespace drive
{
namespace
{
template <class Value>
struct Name {
    const char *name;
    Value value;
};

constexpr Name<MessageIcon> iconNames[] = {
    {"none", MessageIcon::None},
    {"critical", MessageIcon::Critical},
    {"question", MessageIcon::Question},
    {"exclamation", MessageIcon::Exclamation},
    {"information", MessageIcon::Information},
};

constexpr Name<MessageButtons> buttonNames[] = {
    {"OK", MessageButtons::OK},
    {"OKCancel", MessageButtons::OKCancel},
    {"YesNo", MessageButtons::YesNo},
    {"YesNoCancel", MessageButtons::YesNoCancel},
    {"RetryCancel", MessageButtons::RetryCancel},
};

constexpr Name<MessageAnswer> answerNames[] = {
    {"OK", MessageAnswer::OK},         {"Yes", MessageAnswer::Yes},     {"No", MessageAnswer::No},
    {"Cancel", MessageAnswer::Cancel}, {"Retry", MessageAnswer::Retry},
};

constexpr Name<DialogKind> dialogNames[] = {
    {"open", DialogKind::Open},     {"save", DialogKind::Save}, {"colour", DialogKind::Colour},
    {"folder", DialogKind::Folder}, {"font", DialogKind::Font}, {"print", DialogKind::Print},
};

template <class Value>
QString nameOf(std::span<const Name<Value>> names, Value value)
{
    const auto found = std::find_if(names.begin(), names.end(), [&](const auto &row) { return row.value == value; });
    return QLatin1String(found->name);
}

template <class Value>
std::optional<Value> valueOf(std::span<const Name<Value>> names, const QString &name)
{
    const auto same = [&](const auto &row) { return name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0; };
    const auto found = std::find_if(names.begin(), names.end(), same);
    return found == names.end() ? std::nullopt : std::optional(found->value);
}

template <class Value, std::size_t size>
std::span<const Name<Value>> all(const Name<Value> (&names)[size])
{
    return names;
}

/// What leaving a box by its close box answers.
MessageAnswer closed(MessageButtons buttons)
{
    for (const MessageAnswer answer : {MessageAnswer::Cancel, MessageAnswer::No})
        if (hasButton(buttons, answer))
            return answer;
    return MessageAnswer::OK;
}
} // namespace

bool hasButton(MessageButtons buttons, MessageAnswer answer)
{
    switch (buttons) {
    case MessageButtons::OK:
        return answer == MessageAnswer::OK;
    case MessageButtons::OKCancel:
        return answer == MessageAnswer::OK || answer == MessageAnswer::Cancel;
    case MessageButtons::YesNo:
        return answer == MessageAnswer::Yes || answer == MessageAnswer::No;
    case MessageButtons::YesNoCancel:
        return answer == MessageAnswer::Yes || answer == MessageAnswer::No || answer == MessageAnswer::Cancel;
    case MessageButtons::RetryCancel:
        return answer == MessageAnswer::Retry || answer == MessageAnswer::Cancel;
    }
    return false;
}

QString buttonsName(MessageButtons buttons)
{
    return nameOf(all(buttonNames), buttons);
}

QString iconName(MessageIcon icon)
{
    return nameOf(all(iconNames), icon);
}

QString answerName(MessageAnswer answer)
{
    return nameOf(all(answerNames), answer);
}

std::optional<MessageAnswer> parseAnswer(const QString &name)
{
    return valueOf(all(answerNames), name);
}

std::optional<MessageIcon> parseIcon(const QString &name)
{
    return valueOf(all(iconNames), name);
}

std::optional<MessageButtons> parseButtons(const QString &name)
{
    return valueOf(all(buttonNames), name);
}

QString boxText(const MessageBox &box)
{
    return QStringLiteral("the box %1 %2 %3 %4")
        .arg(quoted(box.title), quoted(box.text), iconName(box.icon), buttonsName(box.buttons));
}

MessageAnswer ScriptedBoxes::check(MessageAnswer answer, const MessageBox &box) const
{
    if (!hasButton(box.buttons, answer))
        m_referee.fail(QStringLiteral("a box with the button %1, which is the queued answer").arg(answerName(answer)),
                       boxText(box));
    return answer;
}

MessageAnswer ScriptedBoxes::show(const MessageBox &box)
{
    if (tellOnly) {
        tellOnly(boxText(box));
        return closed(box.buttons);
    }
    if (freely)
        return freely(box).value_or(closed(box.buttons));
    shown.add({box, m_referee.line()});
    if (const auto block = takeBlock(box.title)) {
        check(block->answer, box);
        const QScopedValueRollback guard(m_onShow, box.title);
        playBlock(block->line);
        return block->answer;
    }
    if (m_answers.isEmpty())
        m_referee.fail(QStringLiteral("no box without a queued answer"), boxText(box));
    return check(m_answers.takeFirst(), box);
}

std::optional<ScriptedBoxes::Block> ScriptedBoxes::takeBlock(const QString &title)
{
    const auto found = std::find_if(m_blocks.begin(), m_blocks.end(),
                                    [&](const Block &block) { return block.line.words.front() == title; });
    if (found == m_blocks.end())
        return std::nullopt;
    const Block block = *found;
    m_blocks.erase(found);
    return block;
}

std::optional<Line> ScriptedBoxes::unshown() const
{
    return m_blocks.isEmpty() ? std::nullopt : std::optional(m_blocks.front().line);
}

QList<int> ScriptedBoxes::waiting() const
{
    QList<int> lines;
    for (const Block &block : m_blocks)
        lines.append(block.line.number);
    return lines;
}

QString dialogName(DialogKind kind)
{
    return nameOf(all(dialogNames), kind);
}

std::optional<DialogKind> parseDialogKind(const QString &name)
{
    return valueOf(all(dialogNames), name);
}

std::optional<QString> ShownDialog::property(const QString &name) const
{
    for (const auto &[key, value] : properties)
        if (key == name)
            return value;
    return std::nullopt;
}

QString ShownDialog::told() const
{
    QString text = QStringLiteral("the dialog %1").arg(dialogName(kind));
    for (const auto &[key, value] : properties)
        text += QStringLiteral(" %1=%2").arg(key, quoted(value));
    return text;
}

bool DialogAnswer::fits(DialogKind dialog) const
{
    switch (kind) {
    case Kind::Cancel:
        return true;
    case Kind::Path:
        return dialog == DialogKind::Open || dialog == DialogKind::Save;
    case Kind::Colour:
        return dialog == DialogKind::Colour;
    case Kind::Folder:
        return dialog == DialogKind::Folder;
    case Kind::Font:
        return dialog == DialogKind::Font;
    case Kind::Copies:
        return dialog == DialogKind::Print;
    }
    return false;
}

std::optional<DialogAnswer> ScriptedDialogs::answerTo(const ShownDialog &dialog)
{
    if (freely)
        return freely(dialog.kind);
    shown.add(dialog);
    const bool answered = std::any_of(m_answers.begin(), m_answers.end(),
                                      [&](const DialogAnswer &answer) { return answer.fits(dialog.kind); });
    if (!answered)
        m_referee.fail(QStringLiteral("no dialog without a queued answer"), dialog.told());
    return takeQueued(dialog.kind);
}

std::optional<DialogAnswer> ScriptedDialogs::takeQueued(DialogKind kind)
{
    const auto found =
        std::find_if(m_answers.begin(), m_answers.end(), [&](const DialogAnswer &answer) { return answer.fits(kind); });
    if (found == m_answers.end())
        return std::nullopt;
    const DialogAnswer answer = *found;
    m_answers.erase(found);
    return answer.kind == DialogAnswer::Kind::Cancel ? std::nullopt : std::optional(answer);
}

std::optional<FileDialogResult> ScriptedDialogs::showFile(DialogKind kind, const FileDialogRequest &request)
{
    const auto answer = answerTo({kind,
                                  {{QStringLiteral("Title"), request.DialogTitle},
                                   {QStringLiteral("Filter"), request.Filter},
                                   {QStringLiteral("FilterIndex"), QString::number(request.FilterIndex)},
                                   {QStringLiteral("InitDir"), request.InitDir},
                                   {QStringLiteral("FileName"), request.FileName}}});
    if (!answer)
        return std::nullopt;
    if (!answer->others.isEmpty() && !request.severalFiles)
        m_referee.fail(QStringLiteral("a dialog for several files"), QStringLiteral("one for a single file"));
    return FileDialogResult{answer->text, answer->number.value_or(request.FilterIndex), answer->others};
}

std::optional<FileDialogResult> ScriptedDialogs::showOpen(const FileDialogRequest &request)
{
    return showFile(DialogKind::Open, request);
}

std::optional<FileDialogResult> ScriptedDialogs::showSave(const FileDialogRequest &request)
{
    std::optional<FileDialogResult> chosen = showFile(DialogKind::Save, request);
    if (!chosen || !request.DefaultExt.isEmpty() || request.asksBeforeReplacing)
        return chosen;
    return withEnding(*chosen, request.Filter, [](const QString &path) { return QFileInfo::exists(path); });
}

std::optional<QString> ScriptedDialogs::showFolder(const QString &title, const QString &initialFolder)
{
    const auto answer =
        answerTo({DialogKind::Folder, {{QStringLiteral("Title"), title}, {QStringLiteral("InitDir"), initialFolder}}});
    return answer ? std::optional(answer->text) : std::nullopt;
}

std::optional<ColourValue> ScriptedDialogs::showColour(ColourValue initial)
{
    const auto answer = answerTo({DialogKind::Colour, {{QStringLiteral("Colour"), QString::number(initial)}}});
    return answer ? std::optional(answer->colour) : std::nullopt;
}

std::optional<FontChoice> ScriptedDialogs::showFont(const FontChoice &initial)
{
    const auto answer = answerTo(
        {DialogKind::Font,
         {{QStringLiteral("Font"), initial.family}, {QStringLiteral("Size"), QString::number(initial.points)}}});
    if (!answer)
        return std::nullopt;
    return FontChoice{answer->text, answer->number.value_or(initial.points)};
}

std::optional<int> ScriptedDialogs::showPrint()
{
    const auto answer = answerTo({DialogKind::Print, {}});
    return answer ? std::optional(answer->number.value_or(1)) : std::nullopt;
}
} // namespace drive
