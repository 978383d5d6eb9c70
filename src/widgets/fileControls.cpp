#include "widgets/fileControls.h"

#include "services/fileSystem.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QIconEngine>
#include <QKeyEvent>
#include <QPainter>

namespace
{
constexpr int PathRole = Qt::UserRole;

bool isUnder(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

/// The desktop's icon of a kind of place, asked for when it is first drawn: the style reads a dozen pictures for it,
/// which a start with other things on show need not wait for.
class PlaceIcon final : public QIconEngine
{
public:
    explicit PlaceIcon(QFileIconProvider::IconType place) : m_place(place) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1, mode, state);
    }
    QIconEngine *clone() const override { return new PlaceIcon(m_place); }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull())
            m_icon = QFileIconProvider().icon(m_place);
        return m_icon;
    }

    QFileIconProvider::IconType m_place;
    QIcon m_icon;
};

QString lastName(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.isEmpty() ? path : name;
}
} // namespace

DriveList::DriveList(FileSystem &files, QWidget *parent) : QComboBox(parent)
{
    const QIcon icon(new PlaceIcon(QFileIconProvider::Drive));
    for (const QString &place : QStringList{QDir::rootPath(), QDir::homePath()} + files.volumes()) {
        if (findText(place) < 0)
            addItem(icon, place);
    }
}

QString DriveList::Drive() const
{
    return currentText();
}

bool DriveList::setDrive(const QString &path)
{
    int best = -1;
    for (int row = 0; row < count(); ++row) {
        if (isUnder(path, itemText(row)) && (best < 0 || itemText(row).size() > itemText(best).size()))
            best = row;
    }
    if (best >= 0)
        setCurrentIndex(best);
    return best >= 0;
}

FolderList::FolderList(FileSystem &files, QWidget *parent)
    : QListWidget(parent), m_files(files), m_folderIcon(new PlaceIcon(QFileIconProvider::Folder))
{
    connect(this, &QListWidget::itemDoubleClicked, this, &FolderList::openRow);
}

bool FolderList::setPath(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    const FolderListing listing = m_files.list(clean);
    if (!QDir::isAbsolutePath(path) || listing.error)
        return false;
    m_subfolders.clear();
    for (const FolderEntry &entry : listing.entries) {
        if (entry.isFolder)
            m_subfolders.append(QDir(clean).filePath(entry.name));
    }
    const bool changed = clean != m_path;
    m_path = clean;
    fill();
    if (changed)
        Q_EMIT pathChanged();
    return true;
}

void FolderList::fill()
{
    clear();
    QStringList above{m_path};
    while (!QDir(above.front()).isRoot())
        above.prepend(QFileInfo(above.front()).path());
    for (int depth = 0; depth < above.size(); ++depth)
        addFolder(above[depth], depth);
    for (const QString &folder : m_subfolders)
        addFolder(folder, static_cast<int>(above.size()));
    setCurrentRow(static_cast<int>(above.size()) - 1);
}

void FolderList::addFolder(const QString &path, int depth)
{
    auto *item = new QListWidgetItem(QString(depth * 2, u' ') + lastName(path), this);
    item->setIcon(m_folderIcon);
    item->setData(PathRole, path);
    item->setToolTip(path);
}

void FolderList::openRow(const QListWidgetItem *item)
{
    if (item)
        setPath(item->data(PathRole).toString());
}

std::optional<int> FolderList::rowTowards(const QString &path) const
{
    int best = -1;
    for (int row = 0; row < count(); ++row) { // a longer way that still leads there is a nearer one
        if (isUnder(path, item(row)->data(PathRole).toString()))
            best = row;
    }
    return best < 0 || item(best)->data(PathRole).toString() == m_path ? std::optional<int>() : best;
}

QSize FolderList::sizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 30, fontMetrics().lineSpacing() * 8);
}

void FolderList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        openRow(currentItem());
    else
        QListWidget::keyPressEvent(event);
}

FileList::FileList(FileSystem &files, QWidget *parent) : QListWidget(parent), m_files(files) {}

bool FileList::setPath(const QString &path)
{
    const FolderListing listing = m_files.list(path);
    if (listing.error)
        return false;
    clear();
    for (const FolderEntry &entry : listing.entries) {
        if (!entry.isFolder)
            addItem(entry.name);
    }
    m_path = path;
    Q_EMIT pathChanged();
    return true;
}

QStringList FileList::names() const
{
    QStringList names;
    for (int row = 0; row < count(); ++row)
        names.append(item(row)->text());
    return names;
}
