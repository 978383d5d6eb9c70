// The commands of a finished map: opening what a box stands for, zoom, paper and pictures.
#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/siteProject.h"
#include "files/modPrinting.h"
#include "forms/formRuntime.h"
#include "internet/modViewInBrowser.h"
#include "project/frmProjectLayout.h"
#include "project/mapPanel.h"
#include "project/mapPicture.h"
#include "project/mapScene.h"
#include "project/mapView.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/printing.h"
#include "services/services.h"
#include "services/settings.h"

#include <QDir>
#include <QMenu>
#include <QUrl>
#include <QWidget>

namespace
{
bool isAddress(const QString &target)
{
    const QStringList schemes{QStringLiteral("http:"), QStringLiteral("https:"), QStringLiteral("mailto:")};
    return std::any_of(schemes.begin(), schemes.end(),
                       [&target](const QString &scheme) { return target.startsWith(scheme, Qt::CaseInsensitive); });
}

/// A link's target without the place in the page and the query, as a path is written.
QString pathOfTarget(const QString &target)
{
    const QString path = target.section(u'#', 0, 0).section(u'?', 0, 0);
    return QUrl::fromPercentEncoding(path.toUtf8());
}

constexpr int SvgRow = 1;
const QString PictureFilter = QStringLiteral("SVG Pictures (*.svg)|*.svg|PNG Pictures (*.png)|*.png");
} // namespace

QMenu *frmProjectLayout::buildMenu()
{
    auto *menu = new QMenu(window());
    menu->setObjectName(QStringLiteral("mnuMap"));
    MapView &view = m_panel->view();
    const auto add = [this, menu](const char *name, const char *caption, const QKeySequence &keys, auto run) {
        QAction *entry = menu->addAction(QLatin1String(caption));
        entry->setObjectName(QLatin1String(name));
        entry->setShortcut(keys);
        connect(entry, &QAction::triggered, this, run);
        window()->addAction(entry); // the keys work without the menu
        return entry;
    };
    QAction *open = add("mnuMapOpen", "&Open", {}, [this] {
        if (m_scene->chosen())
            openBox(*m_scene->chosen());
    });
    menu->addSeparator();
    QAction *zoomIn =
        add("mnuMapZoomIn", "Zoom &In", QKeySequence(QStringLiteral("Ctrl++")), [&view] { view.zoomIn(); });
    zoomIn->setShortcuts({QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))});
    add("mnuMapZoomOut", "Zoom O&ut", QKeySequence(QStringLiteral("Ctrl+-")), [&view] { view.zoomOut(); });
    add("mnuMapActualSize", "&Actual Size", QKeySequence(QStringLiteral("Ctrl+0")), [&view] { view.setZoom(1); });
    add("mnuMapFit", "&Fit the Whole Map", QKeySequence(QStringLiteral("Ctrl+9")), [&view] { view.fit(); });
    menu->addSeparator();
    add("mnuMapPrint", "&Print...", QKeySequence(QStringLiteral("Ctrl+P")), [this] { printMap(); });
    add("mnuMapSavePicture", "&Save as Picture...", QKeySequence(QStringLiteral("Ctrl+S")), [this] { savePicture(); });
    connect(menu, &QMenu::aboutToShow, this, [this, open] {
        open->setEnabled(m_scene->chosen() &&
                         (!fileOf(*m_scene->chosen()).isEmpty() || isAddress(m_map->boxes()[*m_scene->chosen()].name)));
    });
    return menu;
}

/// The file that a box stands for: of a relative target, as the first page that links to it sees it. Empty if there is
/// none on the disk.
QString frmProjectLayout::fileOf(int box) const
{
    FileSystem &files = services().files;
    const MapBox &shown = m_map->boxes()[box];
    QString path = shown.folder + shown.name;
    if (!QDir::isRelativePath(path) && files.exists(path))
        return path;
    for (const int page : m_scene->linksTo(box)) {
        const QString target = pathOfTarget(path);
        QString found = QDir::cleanPath(joinPath(m_map->boxes()[page].folder, target));
        if (!target.isEmpty() && QDir::isRelativePath(target) && files.exists(found))
            return found;
    }
    return {};
}

void frmProjectLayout::openBox(int box)
{
    if (!frmMdi().Enabled() || !context().files) // a dialog is at work on the active document
        return;
    const QString target = m_map->boxes()[box].folder + m_map->boxes()[box].name;
    const QString path = fileOf(box);
    if (path.isEmpty()) {
        if (isAddress(target))
            OpenLink(context(), target);
        return;
    }
    for (Document *document : frmMdi().openDocuments())
        if (document->DocSavePath == path) {
            document->activate();
            context().forms.mainForm()->window()->activateWindow();
            return;
        }
    context().files->OpenDocumentFile(path, false);
    context().forms.mainForm()->window()->activateWindow();
}

void frmProjectLayout::printMap()
{
    const std::optional<int> copies = services().commonDialogs.showPrint();
    if (!copies || !isLoaded())
        return;
    const QRectF map = m_scene->itemsBoundingRect();
    const auto error = services().printing.printPicture(
        {.title = Caption(),
         .copies = *copies,
         .landscape = map.width() > map.height(),
         .draw = [this](QPainter &painter, const QRectF &place) { drawMap(*m_scene, painter, place); }});
    if (error)
        services().messageBoxes.show(printErrorBox(*error));
}

void frmProjectLayout::savePicture()
{
    const QString name = FileNameOnly(context().project->path()).section(u'.', 0, 0);
    const auto chosen = services().commonDialogs.showSave(
        {.DialogTitle = QStringLiteral("Save Map as Picture"),
         .Filter = PictureFilter,
         .FilterIndex = SvgRow,
         .InitDir = settings::read(services().settings, settings::WorkingDir),
         .FileName = context().project->isOpen() ? name + QStringLiteral(".svg") : QStringLiteral("map.svg"),
         .asksBeforeReplacing = true});
    if (!chosen || chosen->fileName.isEmpty() || !isLoaded())
        return;
    const QString extension = GetFileExtension(chosen->fileName).toLower();
    const bool svg = extension == u"svg" || (extension != u"png" && chosen->filterIndex == SvgRow);
    const SvgFile drawing = svg ? services().printing.svg(mapAsSvg(*m_scene, Caption())) : SvgFile{};
    if (!drawing.reason.isEmpty()) {
        context().files->FileErrors(PrintError::Unexpected, drawing.reason);
        return;
    }
    const QByteArray picture = svg ? drawing.bytes : mapAsPng(*m_scene);
    const QString path = extension.isEmpty()
                             ? chosen->fileName + (svg ? QStringLiteral(".svg") : QStringLiteral(".png"))
                             : chosen->fileName;
    if (const auto error = services().files.writeWhole(path, picture))
        context().files->FileErrors(error->code, error->description);
}
