#include "drive/freeRules.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/pageCharset.h"
#include "drive/events.h"
#include "drive/stage.h"
#include "drive/told.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/fileSystem.h"
#include "services/timer.h"
#include "surface/editSurface.h"

#include <QApplication>

namespace drive
{
namespace
{
/// The text that the surface keeps, read line by line as it is laid out.
QString textOfLines(const EditSurface &surface)
{
    QString text;
    for (qsizetype line = 0; line < surface.lineCount(); ++line) {
        const qsizetype start = surface.characterFromLine(line).value_or(0);
        const qsizetype end = surface.characterFromLine(line + 1).value_or(surface.textLength());
        text += surface.textPart(start, end - start);
    }
    return text;
}

void checkSurface(Stage &stage, const QString &name, EditSurface &surface)
{
    const QString text = surface.Text();
    const QString held = textOfLines(surface);
    if (held != text)
        stage.referee.fail(QStringLiteral("the surface of %1 to hold the text that it tells of").arg(name),
                           quotedAgainst(text, held));
    const qsizetype lines = text.count(QStringLiteral("\r\n")) + 1;
    if (surface.lineCount() != lines || surface.textLength() != text.size())
        stage.referee.fail(QStringLiteral("%1 of %2 lines and %3 characters").arg(name).arg(lines).arg(text.size()),
                           QStringLiteral("%1 and %2").arg(surface.lineCount()).arg(surface.textLength()));
    const qsizetype start = surface.SelStart();
    const qsizetype end = start + surface.SelLength();
    const auto splitsBreak = [&](qsizetype place) {
        return place > 0 && place < text.size() && text[place] == u'\n' && text[place - 1] == u'\r';
    };
    if (start < 0 || end < start || end > text.size() || splitsBreak(start) || splitsBreak(end))
        stage.referee.fail(QStringLiteral("the selection of %1 in its text").arg(name),
                           QStringLiteral("%1 to %2 of %3").arg(start).arg(end).arg(text.size()));
}

void checkFile(Stage &stage, const QString &name, const Document &document)
{
    FileSystem &files = stage.desktop.services().files;
    const QString &path = document.DocSavePath;
    if (document.boolDirty || document.NewDoc || path.isEmpty() || !document.fileStamp ||
        files.stamp(path) != document.fileStamp)
        return;
    const QString held = decodePage(files.readAll(path).bytes, document.IsInUnicode).text;
    const QString text = document.txtEdit().Text();
    if (held != text && held != text + QStringLiteral("\r\n")) // which a save adds
        stage.referee.fail(QStringLiteral("the file of %1, which has no changes, to hold its text").arg(name),
                           quotedAgainst(text, held));
}

void checkTimers(Stage &stage)
{
    const QStringList names = stage.program().forms().names();
    for (const QString &name : names) {
        const Form *form = stage.program().form(name);
        if (!form || form->isLoaded())
            continue;
        const auto parts = form->findChildren<QObject *>();
        for (const QObject *part : parts) {
            const auto *timer = dynamic_cast<const Timer *>(part);
            if (timer && timer->Enabled() && timer->Interval() > 0)
                stage.referee.fail(QStringLiteral("no timer of %1, which is not loaded, running").arg(name),
                                   timer->objectName());
        }
    }
}

void checkModality(Stage &stage, const QList<Form *> &modal)
{
    const auto loaded = stage.program().forms().loaded();
    for (Form *form : loaded)
        if (form->Visible() && form->window()->windowModality() != Qt::NonModal && form->window()->isWindow() &&
            !modal.contains(form))
            stage.referee.fail(QStringLiteral("nothing modal on show that the program does not wait for"),
                               form->Name());
}
} // namespace

void checkFreeRules(Stage &stage, const QList<Form *> &modal)
{
    MainWindow *window = stage.isRunning() ? stage.program().context().mainWindow : nullptr;
    if (!window)
        return;
    const auto documents = window->openDocuments();
    for (Document *document : documents) {
        if (auto *surface = dynamic_cast<EditSurface *>(&document->txtEdit()))
            checkSurface(stage, document->documentCaption(), *surface);
        checkFile(stage, document->documentCaption(), *document);
    }
    checkModality(stage, modal);
    checkTimers(stage);
}

void checkUndoLeadsBack(Stage &stage)
{
    MainWindow *window = stage.isRunning() ? stage.program().context().mainWindow : nullptr;
    Document *document = window ? window->activeDocument() : nullptr;
    if (!document)
        return;
    document->Undo();
    document->Redo(); // now the text is the one that the history has at this place
    const int place = document->UndoPosition();
    QStringList texts{document->txtEdit().Text()};
    for (int before = place; (document->Undo(), document->UndoPosition() != before); before = document->UndoPosition())
        texts.append(document->txtEdit().Text());
    if (texts.size() == 1)
        return;
    for (qsizetype step = texts.size() - 2; step >= 0; --step) {
        document->Redo();
        const QString text = document->txtEdit().Text();
        if (text != texts[step])
            stage.referee.fail(
                QStringLiteral("redoing to lead back to the text that was undone, %1 steps from it").arg(step),
                quotedAgainst(texts[step], text));
    }
    if (document->UndoPosition() != place)
        stage.referee.fail(QStringLiteral("redoing to lead back to place %1 of the history").arg(place),
                           QString::number(document->UndoPosition()));
}
} // namespace drive
