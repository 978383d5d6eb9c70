// A session of weeks, in a minute: documents and dialogs that come and go leave nothing behind.
#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/unsavedText.h"
#include "desktop/desktopServices.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "services/worker.h"
#include "surface/editSurface.h"
#include "unit/support/fakes.h"
#include "unit/support/servicesOver.h"
#include "widgets/readableStyle.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <malloc.h>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // the compiler comes without its header
#endif

namespace
{
/// How often something comes and goes: a quick number, or the one that TAGWRIGHTER_LONG_SESSION=1 asks for.
int rounds(int quick, int full)
{
    return qEnvironmentVariableIntValue("TAGWRIGHTER_LONG_SESSION") == 1 ? full : quick;
}

/// The desktop's timers, counted.
class CountedTimers final : public TimerSource
{
public:
    explicit CountedTimers(TimerSource &real) : m_real(real) {}
    std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) override
    {
        return std::make_unique<Counted>(m_real.makeTicker(std::move(tick)), *this);
    }
    int alive = 0;
    int running = 0;

private:
    class Counted final : public Ticker
    {
    public:
        Counted(std::unique_ptr<Ticker> real, CountedTimers &owner) : m_real(std::move(real)), m_owner(owner)
        {
            ++m_owner.alive;
        }
        ~Counted() override
        {
            setRunning(false);
            --m_owner.alive;
        }
        void start(int milliseconds) override
        {
            setRunning(true);
            m_real->start(milliseconds);
        }
        void stop() override
        {
            setRunning(false);
            m_real->stop();
        }

    private:
        void setRunning(bool on)
        {
            m_owner.running += (on ? 1 : 0) - (m_running ? 1 : 0);
            m_running = on;
        }
        std::unique_ptr<Ticker> m_real;
        CountedTimers &m_owner;
        bool m_running = false;
    };
    TimerSource &m_real;
};

qsizetype entriesOf(const char *folder)
{
    return QDir(QString::fromLatin1(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

/// What the process has of the machine.
struct Holdings {
    double heap = 0;     ///< bytes that are allocated
    double resident = 0; ///< bytes that are in the memory; 0 where that tells nothing
    qsizetype files = 0;
    qsizetype threads = 0;
    int timers = 0;
    int runningTimers = 0;
    qsizetype widgets = 0;
};

/// The memory alone.
Holdings memoryHeld()
{
    Holdings held;
#ifdef __SANITIZE_ADDRESS__
    // The sanitizer keeps what is given back, so what is resident tells nothing; instead it counts each byte.
    held.heap = static_cast<double>(__sanitizer_get_current_allocated_bytes());
#else
    ::malloc_trim(0);
    const struct mallinfo2 heap = ::mallinfo2();
    held.heap = static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd);
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (statm.open(QIODevice::ReadOnly))
        held.resident = statm.readAll().split(' ').value(1).toDouble() * 4096;
#endif
    return held;
}

std::ostream &operator<<(std::ostream &out, const Holdings &held)
{
    return out << static_cast<qint64>(held.heap / 1024) << " KiB allocated, "
               << static_cast<qint64>(held.resident / 1024) << " KiB resident, " << held.files << " files, "
               << held.threads << " threads, " << held.timers << " timers (" << held.runningTimers << " running), "
               << held.widgets << " widgets";
}

class LongSessions : public testing::Test
{
protected:
    LongSessions() : m_desktop(desktopAt(m_home.path())), timers(m_desktop->services().timers)
    {
        Services &real = m_desktop->services();
        settings::write(real.settings, settings::WelcomeScreen, QStringLiteral("false"));
        useReadableStyle(); // as the program does
        m_services = std::make_unique<Services>(
            servicesOver(real, {.messageBoxes = &boxes, .commonDialogs = &leftDialogs, .timers = &timers}));
        application = std::make_unique<Application>(*m_services);
        application->form(QStringLiteral("frmMdi"))->Show();
        settle();
        QObject::connect(&m_closer, &QTimer::timeout, [] {
            if (QWidget *box = QApplication::activeModalWidget())
                box->close();
        });
        m_closer.start(20);
    }
    ~LongSessions() override
    {
        application.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the windows, before their timers tick
    }

    static std::unique_ptr<DesktopServices> desktopAt(const QString &home)
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            qputenv(place, home.toUtf8());
        const QString programFolder = home + QStringLiteral("/tagwrighter");
        QDir().mkpath(programFolder);
        QFile::copy(QStringLiteral(TEST_SOURCE_DIR "/data/Html.tcb"), programFolder + QStringLiteral("/Html.tcb"));
        return std::make_unique<DesktopServices>();
    }

    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    Holdings holdings()
    {
        m_services->worker.finish();
        settle();
        Holdings held = memoryHeld();
        held.files = entriesOf("/proc/self/fd");
        held.threads = entriesOf("/proc/self/task");
        held.timers = timers.alive;
        held.runningTimers = timers.running;
        held.widgets = QApplication::allWidgets().size();
        return held;
    }

    /// Does something again and again: after the first tenth, by which all that is made once is there, nothing grows
    /// by more than a twentieth.
    // NOLINTNEXTLINE(readability-function-size): most of it is what the expectations stand for
    void repeat(int times, const std::function<void(int)> &once)
    {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < times / 10; ++i)
            once(i);
        const Holdings before = holdings();
        for (int i = times / 10; i < times; ++i)
            once(i);
        Holdings after = holdings();
        for (int wait = 0; wait < 100 && after.threads > before.threads; ++wait) {
            QThread::msleep(100); // a thread of the worker's goes when it has had nothing to do for a while
            after = holdings();
        }
        std::cout << times << " times in " << timer.elapsed() << " ms\n  " << before << "\n  " << after << '\n';
        constexpr double Most = 1.05;
        EXPECT_LE(after.heap, before.heap * Most);
        EXPECT_LE(after.resident, before.resident * Most);
        EXPECT_LE(after.files, before.files);
        EXPECT_LE(after.threads, before.threads);
        EXPECT_LE(after.timers, before.timers);
        EXPECT_LE(after.runningTimers, before.runningTimers);
        EXPECT_LE(after.widgets, before.widgets);
    }

    QTemporaryDir m_home;
    std::unique_ptr<DesktopServices> m_desktop;
    CountedTimers timers;
    AnsweredBoxes boxes;
    AnsweredDialogs leftDialogs; // each is left
    std::unique_ptr<Services> m_services;
    std::unique_ptr<Application> application;
    QTimer m_closer;
};

TEST_F(LongSessions, HoldNothingOfDocumentsThatAreClosed)
{
    QStringList pages;
    for (int i = 0; i < 20; ++i) {
        pages << m_home.filePath(QStringLiteral("%1.htm").arg(i));
        QFile file(pages.last());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("<p class=\"a\">text &amp; more</p>\r\n").repeated(200 + i));
    }
    ProgramContext &context = application->context();
    const qsizetype open = context.mainWindow->openDocuments().size();
    repeat(rounds(150, 1000), [&](int i) {
        context.files->OpenDocumentFile(pages[i % pages.size()], false);
        Document *document = context.mainWindow->activeDocument();
        document->txtEdit().setSelStart(3);
        document->txtEdit().setSelText(QStringLiteral("typed"));
        document->boolDirty = false;
        ASSERT_TRUE(document->unload());
        settle();
        ASSERT_EQ(context.mainWindow->openDocuments().size(), open);
        boxes.shown.clear();
    });
}

TEST_F(LongSessions, HoldNothingOfDialogsThatAreClosed)
{
    QList<Form *> dialogs;
    for (const QString &name : application->forms().names()) {
        Form *form = application->form(name);
        if (form->isLoaded() || name == u"frmSplash")
            continue;
        form->Load();
        if (form->isLoaded() && qobject_cast<QDialog *>(form->window()))
            dialogs << form;
        form->discard();
        application->context().mainWindow->setEnabled(true);
        settle();
    }
    ASSERT_GT(dialogs.size(), 15);
    std::cout << dialogs.size() << " dialogs\n";
    repeat(rounds(1000, 10000), [&](int i) {
        Form *form = dialogs[i % dialogs.size()];
        form->Show();
        settle();
        form->Unload();
        if (form->isLoaded())
            form->discard();
        application->context().mainWindow->setEnabled(true);
        settle();
        boxes.shown.clear();
        leftDialogs.requests.clear();
    });
}
/// The middle one of the times that something took, in microseconds.
double middle(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

TEST_F(LongSessions, PayNothingForTextThatIsKept)
{
    ProgramContext &context = application->context();
    QList<Document *> documents;
    for (int i = 0; i < 10; ++i) {
        documents << context.newBlankDocument();
        documents.last()->txtEdit().setText(QStringLiteral("<p>text</p>\r\n").repeated(1'000'000 / 13));
        documents.last()->boolDirty = true;
    }
    settle();
    context.unsavedText->keepNow();
    QElapsedTimer timer;
    timer.start();
    constexpr int Notes = 1'000'000;
    for (int i = 0; i < Notes; ++i)
        context.unsavedText->noteChange(*documents[i % documents.size()]);
    const double each = static_cast<double>(timer.nsecsElapsed()) / Notes / 1000;
    std::cout << "a change is noted in " << each << " us\n";
    EXPECT_LT(each, 1.0);

    // Keys by turns with and without a keeper, so that both meet the same machine.
    UnsavedText *const keeper = context.unsavedText;
    std::vector<double> with;
    std::vector<double> without;
    auto &edit = dynamic_cast<EditSurface &>(documents.last()->txtEdit());
    for (int i = 0; i < 400; ++i) {
        context.unsavedText = i % 2 == 0 ? keeper : nullptr;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        timer.start();
        QApplication::sendEvent(&edit, &press);
        (i % 2 == 0 ? with : without).push_back(static_cast<double>(timer.nsecsElapsed()) / 1000);
    }
    context.unsavedText = keeper;
    std::cout << "a key in 1 MB takes " << middle(with) << " us with the text kept, " << middle(without)
              << " us without\n";
    timer.start();
    context.unsavedText->keepNow();
    std::cout << "ten texts of 1 MB are on the disk in " << timer.elapsed() << " ms\n";
    for (Document *document : documents)
        document->boolDirty = false;
}
} // namespace
