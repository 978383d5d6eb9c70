#include "files/outsideChanges.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/quickDigest.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"

#include <QGuiApplication>

namespace
{
const QString NoticeKey = QStringLiteral("outside");
} // namespace

OutsideChanges::OutsideChanges(ProgramContext &context) : m_context(context)
{
    // Folders of the network tell nobody of their changes, so whoever comes back to the program has a look.
    if (qGuiApp)
        connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
            Document *active = state == Qt::ApplicationActive && m_context.mainWindow
                                   ? m_context.mainWindow->activeDocument()
                                   : nullptr;
            if (active)
                look(*active);
        });
}

void OutsideChanges::noteBytes(const Document &document, const QByteArray &bytes)
{
    m_known[&document] = {.contents = QuickDigest::of(bytes)};
}

void OutsideChanges::noteTold(const Document &document)
{
    Known &known = m_known[&document];
    known.isTold = true;
    known.told = m_context.services.files.stamp(document.DocSavePath);
}

void OutsideChanges::forget(const Document &document)
{
    m_known.remove(&document);
}

void OutsideChanges::look(Document &document)
{
    follow();
    if (document.DocSavePath.isEmpty() || document.NewDoc || !m_known.contains(&document))
        return;
    const std::optional<FileStamp> now = m_context.services.files.stamp(document.DocSavePath);
    Known &known = m_known[&document];
    if (known.isTold && known.told == now)
        return;
    known.isTold = true;
    known.told = now;
    if (!isChanged(document, now)) {
        document.notices.remove(NoticeKey); // what was told is over: the file is as it was
        return;
    }
    const bool loads =
        now && !document.boolDirty && settings::isOn(m_context.services.settings, settings::LoadChangedFiles);
    if (loads)
        loadAgain(document);
    else
        tell(document, !now);
}

/// The same bytes under a new time are no change, nor is a file that this program wrote.
bool OutsideChanges::isChanged(const Document &document, const std::optional<FileStamp> &now) const
{
    if (now == document.fileStamp)
        return false;
    const std::optional<size_t> contents = m_known.value(&document).contents;
    if (!now || !contents)
        return true;
    const FileContents file = m_context.services.files.readAll(document.DocSavePath);
    return file.error || QuickDigest::of(file.bytes) != *contents;
}

void OutsideChanges::tell(Document &document, bool gone)
{
    Document *page = &document;
    document.notices.put(
        {.key = NoticeKey,
         .kind = NoticeKind::Outside,
         .text = gone ? QStringLiteral("The file is gone: another program has removed or renamed it.")
                      : QStringLiteral("Another program has changed the file."),
         .buttons = {{.caption = QStringLiteral("Load again"),
                      .pressed = [this, page] { loadAgain(*page); },
                      .enabled = !gone,
                      .answers = false},
                     {.caption = QStringLiteral("Keep mine"), .pressed = [page] { page->boolDirty = true; }}}});
}

void OutsideChanges::loadAgain(Document &document)
{
    if (m_context.files->LoadAgain(document))
        document.notices.remove(NoticeKey);
}

/// Has the files of the documents that are open now watched.
void OutsideChanges::follow()
{
    QStringList paths;
    for (const Document *document : m_context.mainWindow->openDocuments())
        if (!document->DocSavePath.isEmpty())
            paths << document->DocSavePath;
    if (paths == m_followed)
        return;
    m_followed = paths;
    m_context.services.files.watch(paths, [this] { lookAtAll(); });
}

void OutsideChanges::lookAtAll()
{
    for (Document *document : m_context.mainWindow->openDocuments())
        look(*document);
}
