#include "fakes.h"

#include <QFile>

FilesTest::FilesTest()
    : m_services{
          .messageBoxes = boxes,
          .commonDialogs = dialogs,
          .settings = settings,
          .files = disk,
          .launcher = m_launcher,
          .clipboard = m_clipboard,
          .clock = m_clock,
          .random = m_random,
          .help = m_help,
          .timers = m_timers,
          .fileClasses = m_fileClasses,
          .modalLoop = modal,
          .yielder = m_yielder,
          .pageViews = m_pageViews,
          .worker = m_worker,
          .transfers = transfers,
          .wizards = m_wizards,
          .printing = printing,
          .systemFacts = systemFacts,
          .appPath = m_folder.path(),
          .statePath = m_folder.path() + QStringLiteral("/state"),
      },
      context{.services = m_services, .forms = m_runtime, .state = state, .screenPointer = m_pointer}
{
    context.mainWindow = &mainWindow;
    context.files = &files;
    context.uploads = &uploads;
    context.newBlankDocument = [this]() -> Document * { return &newDocument(); };
    context.end = [this] { ended = true; };
    setting("AppPaths", QStringLiteral("WorkingDir"), m_folder.path());
}

FilesTest::~FilesTest()
{
    m_runtime.end();
}

FakeDocument &FilesTest::newDocument()
{
    m_documents.push_back(std::make_unique<FakeDocument>(mainWindow));
    FakeDocument &document = *m_documents.back();
    document.NewDoc = true;
    document.caption = QStringLiteral("Untitled") + QString::number(m_documents.size());
    mainWindow.documents.append(&document);
    mainWindow.active = &document;
    return document;
}

FakeDocument &FilesTest::openedDocument(const QString &name, const QByteArray &bytes)
{
    writeFile(name, bytes);
    files.OpenDocumentFile(path(name), false);
    return *m_documents.back();
}

void FilesTest::writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray FilesTest::bytesOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(no file)");
}

void FilesTest::setting(const char *section, const QString &key, const QString &value)
{
    settings.SaveSetting(QStringLiteral("QWRK77XE"), QString::fromLatin1(section), key, value);
}

QString FilesTest::storedSetting(const char *section, const QString &key)
{
    return settings.GetSetting(QStringLiteral("QWRK77XE"), QString::fromLatin1(section), key);
}

MessageBox FilesTest::takeBox()
{
    EXPECT_EQ(boxes.shown.size(), 1);
    return boxes.shown.isEmpty() ? MessageBox() : boxes.shown.takeFirst();
}
