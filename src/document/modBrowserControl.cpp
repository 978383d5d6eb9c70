#include "document/modBrowserControl.h"

#include "browser/otherHosts.h"
#include "common/browser.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "services/doEvents.h"
#include "services/pageView.h"
#include "services/pageViews.h"
#include "services/services.h"
#include "services/settings.h"
#include "storage/documentCopy.h"

#include <QScopedValueRollback>
#include <QUrl>

namespace
{
using BrowserCommand = void (Browser::*)(const QString &);

const QString CopyName = QStringLiteral("tmp_iprv.html");

Browser *activeBrowser(ProgramContext &context)
{
    Document *document = context.mainWindow->activeDocument();
    return document ? document->brwWebBrowser() : nullptr;
}

void go(ProgramContext &context, void (Browser::*command)())
{
    if (Browser *browser = activeBrowser(context))
        (browser->*command)();
}

void goTo(ProgramContext &context, BrowserCommand command, const QString &target)
{
    if (Browser *browser = activeBrowser(context))
        (browser->*command)(target);
}

/// Where the browser is to go in order to show the copy: there, or to the document's own file, whose place the text
/// takes.
QString placeOfCopy(ProgramContext &context, const Document &document, const DocumentCopy &copy)
{
    PageSource &source = context.services.pageViews.source();
    if (document.DocSavePath.isEmpty() || !context.state.habits.HabitPreview) {
        source.setFolderOf(copy.path, otherHosts::folderOf(document.DocSavePath));
        return copy.path;
    }
    source.setText(document.DocSavePath, copy.bytes);
    return document.DocSavePath;
}

void showCopy(ProgramContext &context, BrowserCommand command)
{
    DoEvents();
    const Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    const DocumentCopy copy = writeDocumentCopy(context.services, *document, CopyName);
    DoEvents();
    if (context.mainWindow->activeDocument() != document) // the copy is not the text of the one that is active now
        return;
    goTo(context, command, placeOfCopy(context, *document, copy));
    DoEvents();
}

/// From its file, in place of which an unsaved text may have been shown.
void showFile(ProgramContext &context, BrowserCommand command, const QString &path)
{
    context.services.pageViews.source().dropText(path);
    goTo(context, command, path);
}

void preview(ProgramContext &context, BrowserCommand command)
{
    const QScopedValueRollback busy(context.state.PreviewBusy, true);
    context.state.PreviewUseTempCopy = settings::previewsByCopy(context.services.settings);
    const Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    if (!document->boolDirty && !document->DocSavePath.isEmpty())
        showFile(context, command, document->DocSavePath);
    else
        showCopy(context, command);
}
} // namespace

void UpdateLivePreview(ProgramContext &context)
{
    preview(context, &Browser::Navigate);
}

void FollowWithLivePreview(ProgramContext &context)
{
    const Document *document = context.mainWindow->activeDocument();
    if (!document)
        return;
    const bool worthIt = document->boolDirty || showsSomething(document->txtEdit().Text());
    preview(context, worthIt ? &Browser::Follow : &Browser::NavigateIfRunning);
}

bool isShownUnder(const Document &document, const QString &address)
{
    const QUrl page = QUrl(address).adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment); // a place in it is it, too
    return document.DocSavePath.isEmpty() ? page.fileName() == CopyName
                                          : page == QUrl::fromLocalFile(document.DocSavePath);
}

void GoBack(ProgramContext &context)
{
    go(context, &Browser::GoBack);
}

void GoForward(ProgramContext &context)
{
    go(context, &Browser::GoForward);
}

void Stop(ProgramContext &context)
{
    go(context, &Browser::Stop);
}

void Refresh(ProgramContext &context)
{
    go(context, &Browser::Refresh);
}

void Navigate(ProgramContext &context, const QString &path)
{
    goTo(context, &Browser::Navigate, path);
}

bool showsSomething(const QString &source)
{
    const qsizetype tag = source.indexOf(QLatin1String("<body"), 0, Qt::CaseInsensitive);
    const qsizetype inside = tag < 0 ? -1 : source.indexOf(u'>', tag);
    const QStringView shown = QStringView(source).sliced(inside + 1).trimmed(); // of all, if no body begins
    const QLatin1String end("</body");
    if (inside >= 0 && shown.startsWith(end, Qt::CaseInsensitive))
        return !shown.sliced(end.size()).trimmed().startsWith(u'>');
    return !shown.isEmpty();
}
