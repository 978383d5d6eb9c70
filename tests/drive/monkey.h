#pragma once

#include "drive/freePlay.h"
#include "drive/monkeyWords.h"

#include <QFile>

namespace drive
{
/// A user who does anything: lines made up from a seed and from what is on show. Each line is written to a file before
/// it is played, so that the whole play can be repeated whatever comes of it.
class Monkey final : public LineSource
{
public:
    /// `written` is the file for the lines; empty for none.
    Monkey(quint32 seed, int steps, const QString &written);

    std::optional<Line> next(Stage &stage, Form *modal) override;
    std::optional<Line> answerTo(const MessageBox &box) override;
    std::optional<Line> answerTo(DialogKind kind) override;

private:
    Line note(const QStringList &words);
    QStringList anywhere(Stage &stage);
    QStringList writing();
    QStringList byMenu(Stage &stage);
    QStringList byTool(Stage &stage);
    QStringList inDocument(Stage &stage);
    QStringList inText();
    QStringList inTime(Stage &stage);
    QStringList inSomeForm(Stage &stage);
    QStringList inForm(Stage &stage, Form &form);
    QStringList onControl(const QString &target, QObject &control);
    QStringList leaving(Stage &stage, Form &form);
    QStringList mouse(const QString &target, const QWidget &widget);

    MonkeyWords m_words;
    int m_left;
    int m_number = 0;
    int m_modalSteps = 0; ///< since the modal form came up
    Form *m_modal = nullptr;
    QFile m_file;
};
} // namespace drive
