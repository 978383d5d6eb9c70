#include "files/recovery.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "common/fileFormatText.h"
#include "common/mainWindow.h"
#include "common/pageCharset.h"
#include "common/quoted.h"
#include "files/frmWhatChanged.h"
#include "forms/formRuntime.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/worker.h"

#include <algorithm>

namespace
{
// A change is kept at the second tick after the last one, and at the fifth after the first one: a second after the last
// key, and well within three seconds of typing that does not stop.
constexpr int TickMilliseconds = 500;
constexpr int MostTicks = 5;
constexpr qsizetype FewDocuments = 3; ///< more than these can be answered together

const QString NoticeKey = QStringLiteral("recovery");
} // namespace

/// One page on its way to the disk: all that the worker may look at.
struct Recovery::Job {
    const Document *document = nullptr;
    QString file;
    KeptPage page;
    std::optional<FileError> error = {};
};

Recovery::Recovery(ProgramContext &context)
    : m_context(context),
      m_folder(context.services.files, context.services.statePath),
      // Before anything is opened: what is torn is whole again then.
      m_settled(SaveNotes(context.services.statePath).settle()),
      m_timer(context.services.timers, QStringLiteral("tmrRecovery"), [this] { tick(); })
{
    m_timer.setInterval(TickMilliseconds);
}

Recovery::~Recovery()
{
    m_context.services.worker.finish();
}

void Recovery::noteChange(Document &document)
{
    m_kept[&document].changed = true;
    m_typed = true;
    if (!m_timer.Enabled()) {
        m_ticks = 0;
        m_timer.setEnabled(true);
    }
}

void Recovery::noteActivation()
{
    if (!m_kept.empty() && !m_timer.Enabled())
        m_timer.setEnabled(true);
}

void Recovery::tick()
{
    ++m_ticks;
    if (std::exchange(m_typed, false) && m_ticks < MostTicks)
        return;
    m_timer.setEnabled(false);
    m_ticks = 0;
    keepChanged();
}

void Recovery::keepNow()
{
    keepChanged();
    m_context.services.worker.finish();
}

bool Recovery::keepForStartAnew()
{
    std::vector<std::shared_ptr<Job>> jobs;
    const QList<Document *> documents = m_context.mainWindow->openDocuments();
    for (Document *document : documents)
        jobs.push_back(keep(*document, m_kept[document], true));
    keepActive();
    m_context.services.worker.finish();
    const auto isKept = [](const std::shared_ptr<Job> &job) { return !job->error; };
    if (std::all_of(jobs.begin(), jobs.end(), isKept))
        return true;
    for (Document *document : documents)
        keepAsBefore(*document);
    return false;
}

/// What is kept of the document goes if it has no changes, and is written anew, as what it is, if it has.
void Recovery::keepAsBefore(Document &document)
{
    if (document.boolDirty) {
        noteChange(document);
        return;
    }
    const auto kept = m_kept.extract(&document);
    if (!kept.empty())
        m_context.services.worker.run([this, file = kept.mapped().file] { m_folder.remove(file); }, [] {});
}

void Recovery::keepChanged()
{
    for (Document *document : m_context.mainWindow->openDocuments()) {
        const auto found = m_kept.find(document);
        if (found == m_kept.end() || !std::exchange(found->second.changed, false))
            continue;
        if (document->boolDirty)
            keep(*document, found->second, false);
        else
            forget(*document);
    }
    keepActive();
}

KeptPage Recovery::pageOf(Document &document, const Kept &kept) const
{
    KeptPage page;
    page.order = document.DocNumber;
    page.path = document.DocSavePath;
    page.newDoc = document.NewDoc;
    page.unicode = document.IsInUnicode;
    page.format = document.fileFormat;
    page.plainEncoding = document.plainEncoding;
    page.mixedLineEnds = document.mixedLineEnds;
    page.internetOrigin = document.InternetOriginURL;
    page.text = document.txtEdit().Text();
    page.selStart = document.txtEdit().SelStart();
    page.selLength = document.txtEdit().SelLength();
    page.stamp = document.fileStamp;
    page.changed = document.boolDirty;
    if (kept.stamp == document.fileStamp)
        page.fileDigest = kept.digest;
    return page;
}

std::shared_ptr<Recovery::Job> Recovery::keep(Document &document, Kept &kept, bool startsAnew)
{
    if (kept.file.isEmpty())
        kept.file = m_folder.newFile();
    auto job = std::make_shared<Job>(Job{&document, kept.file, pageOf(document, kept)});
    job->page.startsAnew = startsAnew;
    m_context.services.worker.run(
        [this, job] {
            // What the file held is looked at here, so that no opening has to wait for it.
            FileSystem &files = m_context.services.files;
            if (job->page.stamp && job->page.fileDigest.isEmpty() && files.stamp(job->page.path) == job->page.stamp)
                job->page.fileDigest = digestOf(files.readAll(job->page.path).bytes);
            job->error = m_folder.write(job->file, keptPageBytes(job->page));
        },
        [this, alive = std::weak_ptr<int>(m_alive), job] {
            if (!alive.expired())
                noteResult(*job);
        });
    return job;
}

void Recovery::noteResult(const Job &job)
{
    const auto found = m_kept.find(job.document);
    if (found != m_kept.end() && found->second.file == job.file) {
        found->second.stamp = job.page.stamp;
        found->second.digest = job.page.fileDigest;
        found->second.changed = found->second.changed || job.error;
    }
    if (job.error && !m_failing)
        m_context.mainWindow->SetStatusText(QStringLiteral("The unsaved text could not be kept: ") +
                                            job.error->description);
    m_failing = job.error.has_value();
}

void Recovery::keepActive()
{
    const auto found = m_kept.find(m_context.mainWindow->activeDocument());
    const QString file = found == m_kept.end() ? QString() : found->second.file;
    if (file == m_active)
        return;
    m_active = file;
    m_context.services.worker.run([this, file] { m_folder.writeActive(file); }, [] {});
}

void Recovery::forget(Document &document)
{
    answered(document);
    const auto found = m_kept.find(&document);
    if (found == m_kept.end())
        return;
    const QString file = found->second.file;
    m_kept.erase(found);
    if (!file.isEmpty())
        m_context.services.worker.run([this, file] { m_folder.remove(file); }, [] {});
}

QString Recovery::restore(Document *opened)
{
    const RecoveryFolder::Finds finds = m_folder.takeOver();
    QHash<Document *, QString> texts;
    Document *active = opened;
    for (const RecoveryFolder::Found &found : finds.pages) {
        Document *document = bringBack(found);
        if (!document)
            continue; // there is no memory for it: it stays on the disk for the next start
        if (found.active && !opened)
            active = document;
        if (found.page.startsAnew) {
            keepAsBefore(*document);
            continue;
        }
        m_recovered << document;
        m_context.files->noteFileTold(*document);
        texts.insert(document,
                     QStringLiteral("Recovered after an unexpected end.") + fileRemark(found.page, *document));
    }
    for (Document *document : std::as_const(m_recovered))
        tell(*document, texts.value(document), document == m_recovered.constFirst());
    if (active && !finds.pages.isEmpty()) {
        active->activate();
        m_context.mainWindow->showFileFormat(fileFormatText(*active)); // it may have been in front, without its text
    }
    return remarkOn(finds.unreadable);
}

/// What no document's line can tell.
QString Recovery::remarkOn(const QString &unreadable) const
{
    QStringList sentences;
    for (const QString &file : m_settled.putBack)
        sentences << QStringLiteral("A save of ") + quoted(file) +
                         QStringLiteral(" was broken off: the file has its old contents again.");
    for (const QString &file : m_settled.aside)
        sentences << QStringLiteral(
                         "A save was broken off whose file has gone or changed since. The old contents are kept in ") +
                         file + QStringLiteral(".");
    if (!unreadable.isEmpty())
        sentences << QStringLiteral("Unsaved text was found that could not be read. It is kept in ") + unreadable +
                         QStringLiteral(".");
    return sentences.join(u' ');
}

/// The document with the kept text in it, as dirty as it was; nothing if there is no memory for one.
Document *Recovery::bringBack(const RecoveryFolder::Found &found)
{
    const KeptPage &page = found.page;
    Document *document = nullptr;
    for (Document *open : m_context.mainWindow->openDocuments())
        if (!page.path.isEmpty() && open->DocSavePath == page.path)
            document = open;
    if (!document) {
        document = m_context.newBlankDocument();
        if (!document)
            return nullptr;
        if (!page.path.isEmpty()) {
            document->setDocumentCaption(page.path);
            document->DocSavePath = page.path;
            document->DocSelUpdate(page.path);
        }
    }
    document->NewDoc = page.newDoc;
    document->IsInUnicode = page.unicode;
    document->fileFormat = page.format;
    document->plainEncoding = page.plainEncoding;
    document->mixedLineEnds = page.mixedLineEnds;
    document->InternetOriginURL = page.internetOrigin;
    document->fileStamp = page.stamp;
    document->txtEdit().setText(page.text);
    document->UndoRedoChange();
    document->txtEdit().setSelStart(page.selStart);
    document->txtEdit().setSelLength(page.selLength);
    document->boolDirty = page.changed;
    document->beginHistory();
    // It is kept as it stands: nothing is written before something changes.
    m_kept[document] = {.file = found.file, .changed = false, .stamp = page.stamp, .digest = page.fileDigest};
    return document;
}

/// What has become of the document's file, as the end of a sentence; the document then knows its file's state, unless
/// that has changed.
QString Recovery::fileRemark(const KeptPage &page, Document &document) const
{
    if (page.path.isEmpty())
        return {};
    FileSystem &files = m_context.services.files;
    const std::optional<FileStamp> now = files.stamp(page.path);
    if (!now)
        return QStringLiteral(" Its file is gone.");
    if (now == page.stamp)
        return {};
    const FileContents contents = files.readAll(page.path);
    if (contents.error || !isDigestOf(page.fileDigest, contents.bytes))
        return QStringLiteral(" Its file has changed on the disk since.");
    document.fileStamp = now; // the same bytes under a new time
    return {};
}

void Recovery::tell(Document &document, const QString &text, bool first)
{
    Notice notice{.key = NoticeKey, .kind = NoticeKind::Recovery, .text = text, .buttons = {}};
    Document *page = &document;
    notice.buttons << NoticeButton{.caption = QStringLiteral("Keep"), .pressed = [this, page] { answered(*page); }};
    notice.buttons << NoticeButton{.caption = QStringLiteral("Show what changed"),
                                   .pressed = [this, page] { showWhatChanged(*page); },
                                   .answers = false};
    notice.buttons << NoticeButton{
        .caption = QStringLiteral("Discard"), .pressed = [this, page] { discard(*page); }, .answers = false};
    if (first && m_recovered.size() > FewDocuments) {
        notice.buttons << NoticeButton{
            .caption = QStringLiteral("Keep all"), .pressed = [this] { forAll(false); }, .answers = false};
        notice.buttons << NoticeButton{
            .caption = QStringLiteral("Discard all"), .pressed = [this] { forAll(true); }, .answers = false};
    }
    document.notices.put(notice);
}

void Recovery::answered(Document &document)
{
    m_recovered.removeAll(&document);
    document.notices.remove(NoticeKey);
}

void Recovery::showWhatChanged(Document &document)
{
    QString before;
    if (!document.DocSavePath.isEmpty())
        before = decodePage(m_context.services.files.readAll(document.DocSavePath).bytes, document.IsInUnicode).text;
    auto &form = m_context.forms.get<frmWhatChanged>();
    form.setTexts(before, document.txtEdit().Text());
    form.ShowModal();
}

void Recovery::discard(Document &document)
{
    const MessageAnswer answer =
        m_context.services.messageBoxes.show({.title = QStringLiteral("Recovered Text"),
                                              .text = QStringLiteral("Discard the recovered text of ") +
                                                      quoted(document.documentCaption()) + QStringLiteral("?"),
                                              .icon = MessageIcon::Exclamation,
                                              .buttons = MessageButtons::YesNo,
                                              .byEnter = MessageAnswer::No});
    if (answer == MessageAnswer::Yes)
        giveUp(document);
}

/// Gives a file's page the file's text, and closes a page without one. False where the file cannot be read: the text
/// stays.
bool Recovery::giveUp(Document &document)
{
    const bool hasFile = !document.DocSavePath.isEmpty() && m_context.services.files.exists(document.DocSavePath);
    if (hasFile && !m_context.files->LoadAgain(document))
        return false;
    forget(document);
    document.boolDirty = false;
    if (!hasFile)
        document.unload();
    return true;
}

void Recovery::forAll(bool discarded)
{
    if (discarded) {
        const MessageAnswer answer = m_context.services.messageBoxes.show(
            {.title = QStringLiteral("Recovered Text"),
             .text = QStringLiteral("Discard the recovered text of all %1 documents?").arg(m_recovered.size()),
             .icon = MessageIcon::Exclamation,
             .buttons = MessageButtons::YesNo,
             .byEnter = MessageAnswer::No});
        if (answer != MessageAnswer::Yes)
            return;
    }
    const QList<Document *> documents = m_recovered;
    for (Document *document : documents) {
        if (discarded)
            giveUp(*document);
        else
            answered(*document);
    }
}
