#include "project/frmProjectLayout.h"

#include "common/encodings.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/siteProject.h"
#include "project/linkScan.h"
#include "project/mapControls.h"
#include "project/mapPanel.h"
#include "project/mapScene.h"
#include "project/mapView.h"
#include "project/waitSign.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "services/yielder.h"
#include "widgets/controls.h"
#include "widgets/screenPlace.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <new>
#include <numeric>

namespace
{
constexpr int TwipsPerPixel = 15;
constexpr int AnimationMilliseconds = 200;
constexpr QSize BoxSize(1740, 510); ///< twips; an even number of pixels, so that centres lie on whole ones
constexpr QSize SheetSize(12000, 9000);
constexpr qint64 LargestPage = 64LL * 1024 * 1024; ///< bytes; what is larger is a box without links
constexpr int LinksAtATime = 256;                  ///< links that are drawn without giving way to events
constexpr qsizetype TextAtATime = 1 << 20;         ///< characters that are scanned without

ColourValue storedColour(SettingsStore &store, const settings::Key &key)
{
    return static_cast<ColourValue>(settings::read(store, key).toLongLong());
}
} // namespace

frmProjectLayout::frmProjectLayout(ProgramContext &context) : Form(context, QStringLiteral("frmProjectLayout")) {}

frmProjectLayout::~frmProjectLayout()
{
    discard(); // the window's scene draws the map
}

int frmProjectLayout::BoxCount() const
{
    return m_map ? static_cast<int>(m_map->boxes().size()) : 0;
}

int frmProjectLayout::LineCount() const
{
    return m_map ? static_cast<int>(m_map->lines().size()) : 0;
}

bool frmProjectLayout::BoxEnlarged() const
{
    return isLoaded() && m_scene->BoxEnlarged();
}

QObject *frmProjectLayout::control(const QString &name) const
{
    if (isLoaded() && m_panel)
        if (QObject *drawn = mapControl(m_panel->view(), name))
            return drawn;
    return Form::control(name);
}

void frmProjectLayout::Form_Load()
{
    const quint32 load = ++m_load;
    setCaption(QStringLiteral("Site Project Map"));
    beginMap();
    buildControls();
    resizeTo(5235, 1185);
    frmMdi().setEnabled(false);
    tmrAnimate->setEnabled(true);
    presentWindow();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // so that it stands there before the work
    MapSelectedPages();
    if (isLoaded() && m_load == load)
        setCaption(QStringLiteral("Site Project Map - [") + context().project->path() + u']');
}

void frmProjectLayout::Form_Unload()
{
    ++m_load;
    if (m_mapping)
        frmMdi().setEnabled(true);
    m_mapping = false;
    m_panel = nullptr;
}

void frmProjectLayout::buildControls()
{
    cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), [this] { cmdCancel_Click(); });
    m_panel = new MapPanel(cmdCancel);
    auto *layout = new QVBoxLayout(window());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panel);
    m_scene = new MapScene(
        m_map, MapLook::ofTheme(window()->palette()),
        [this](const MapBox &box) {
            const QString path = box.folder + box.name;
            return m_projectFiles.contains(path) && !services().files.exists(path);
        },
        m_panel);
    m_panel->view().setMap(m_scene);
    m_menu = buildMenu();
    connect(m_panel, &MapPanel::menuWanted, m_menu, [this](const QPoint &position) { m_menu->popup(position); });
    connect(&m_panel->view(), &MapView::openWanted, this, &frmProjectLayout::openBox);
    connect(&m_panel->view(), &MapView::escapePressed, this, [this] {
        if (m_mapping)
            cmdCancel_Click();
        else
            Unload();
    });
    tmrAnimate = new Timer(
        services().timers, QStringLiteral("tmrAnimate"), [this] { tmrAnimate_Timer(); }, window());
    tmrAnimate->setInterval(AnimationMilliseconds);
    m_panel->waitSign().showFrame(m_animationFrame);
    window()->setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    setCancelButton(cmdCancel);
}

void frmProjectLayout::resizeTo(int widthInTwips, int heightInTwips)
{
    window()->resize(QSize(widthInTwips / TwipsPerPixel, heightInTwips / TwipsPerPixel)
                         .expandedTo(m_panel->waitSign().isHidden() ? QSize() : m_panel->waitSign().minimumSizeHint()));
}

MapStyle frmProjectLayout::style() const
{
    SettingsStore &store = services().settings;
    return {.located = storedColour(store, settings::ColourLayoutLocated),
            .notLocated = storedColour(store, settings::ColourLayoutNotLocated),
            .url = storedColour(store, settings::ColourLayoutURL),
            .email = storedColour(store, settings::ColourLayoutEmail),
            .randomLines = settings::isOn(store, settings::LayoutLocatedColour),
            .box = BoxSize,
            .sheet = SheetSize};
}

/// A map without boxes, of the project as it is now.
void frmProjectLayout::beginMap()
{
    m_mapCancelled = false;
    m_animationFrame = 1;
    m_pages = context().project->editorFiles();
    QSet<QString> pages;
    for (const ProjectItem &page : std::as_const(m_pages))
        pages.insert(page.key);
    m_projectFiles = pages;
    for (const ProjectItem &file : context().project->otherFiles())
        m_projectFiles.insert(file.key);
    m_map = std::make_shared<SiteMap>(style(), pages, services().random);
}

QList<qsizetype> frmProjectLayout::pagesToMap() const
{
    const QList<int> selected = context().project->selectedEditorFiles();
    if (selected.size() >= 2) // a single one is hardly meant as a choice
        return {selected.begin(), selected.end()};
    QList<qsizetype> all(m_pages.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

void frmProjectLayout::MapSelectedPages()
{
    m_mapping = true;
    services().yielder.beginPass();
    if (mapPages(pagesToMap()))
        finishMap();
}

/// False if the form was closed meanwhile: nothing of it may be touched any more.
bool frmProjectLayout::mapPages(const QList<qsizetype> &pages)
{
    const QPointer<frmProjectLayout> self(this);
    const quint32 load = m_load;
    for (qsizetype done = 0; done < pages.size(); ++done) {
        m_panel->waitSign().showProgress(static_cast<int>(done), static_cast<int>(pages.size()));
        services().yielder.yield();
        if (!self || m_load != load)
            return false;
        if (m_mapCancelled)
            break;
        MapSiteProjectLayout(pages[done]);
        if (!self || m_load != load)
            return false;
    }
    return true;
}

void frmProjectLayout::MapSiteProjectLayout(qsizetype index)
{
    if (!isLoaded() || index < 0 || index >= m_pages.size())
        return;
    const QString key = m_pages[index].key;
    const QString name = FileNameOnly(key);
    const QString folder = FolderOfPath(key);
    if (!m_map->BoxExists(name, folder))
        m_map->AddBox(name, folder);
    if (const std::optional<QString> text = pageText(key))
        mapTargets(*text, name, folder);
    else
        m_scene->takeNew();
}

/// The page's text; nothing where there is none to be had, which is told by the box that has no links.
std::optional<QString> frmProjectLayout::pageText(const QString &path) const
{
    FileSystem &files = services().files;
    if (!files.exists(path) || files.size(path).value_or(0) > LargestPage)
        return std::nullopt;
    try {
        const FileContents file = files.readAll(path);
        return file.error ? std::nullopt : std::optional(decode(file.bytes).text);
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}

void frmProjectLayout::mapTargets(const QString &text, const QString &name, const QString &folder)
{
    LinkScan scan(text);
    int links = 0;
    qsizetype scanned = 0;
    while (const std::optional<QString> target = scan.next()) {
        const QString toName = FileNameOnly(*target);
        const QString toFolder = FolderOfPath(*target);
        if (!m_map->BoxExists(toName, toFolder))
            m_map->AddBox(toName, toFolder);
        m_map->AddLine(toName, toFolder, name, folder);
        if (++links % LinksAtATime != 0 && scan.position() - scanned < TextAtATime)
            continue;
        scanned = scan.position();
        if (!goOn())
            return;
    }
    m_scene->takeNew();
}

/// Draws what there is, and gives way to events within one page. False if it was the last that is to be drawn of it.
bool frmProjectLayout::goOn()
{
    const QPointer<frmProjectLayout> self(this);
    const quint32 load = m_load;
    m_scene->takeNew();
    services().yielder.yield();
    return self && m_load == load && !m_mapCancelled;
}

void frmProjectLayout::finishMap()
{
    m_mapping = false;
    tmrAnimate->setEnabled(false);
    m_panel->waitSign().hide();
    resizeTo(7485, 5610);
    const QRect frame = window()->frameGeometry();
    if (const QRect whole = wholePlace(frame, window()->screen()->availableGeometry()); whole != frame)
        window()->move(whole.topLeft());
    frmMdi().setEnabled(true);
    m_panel->view().setFocus();
}

void frmProjectLayout::tmrAnimate_Timer()
{
    m_animationFrame = m_animationFrame % WaitSign::Frames + 1;
    m_panel->waitSign().showFrame(m_animationFrame);
}

void frmProjectLayout::cmdCancel_Click()
{
    m_mapCancelled = true;
}
