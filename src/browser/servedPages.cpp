#include "browser/servedPages.h"

#include "browser/otherHosts.h"
#include "browser/pageFiles.h"
#include "common/paths.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QUrl>

namespace
{
const QString Step = QStringLiteral("-/");
constexpr int Beginning = 1024; // bytes that tell what a page without a telling name is

QString newHost()
{
    QString host;
    for (int i = 0; i < 4; ++i)
        host += QStringLiteral("%1").arg(QRandomGenerator::system()->generate(), 8, 16, QLatin1Char('0'));
    return host;
}

/// How many steps a path begins with, at most as many as its place has.
int stepsOf(const QString &path, int depth)
{
    int steps = 0;
    while (steps < depth && QStringView(path).sliced(1 + steps * Step.size()).startsWith(Step))
        ++steps;
    return steps;
}

bool isServed(const QUrl &address)
{
    return address.scheme() == QLatin1String(PageScheme);
}

std::unique_ptr<QIODevice> bufferOf(const QByteArray &bytes)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}
} // namespace

ServedPages::ServedPages(SettingsStore &settings, const QStringList &closedFolders)
    : m_settings(settings), m_closed(closedFolders)
{
}

void ServedPages::setText(const QString &path, const QByteArray &bytes)
{
    m_texts.insert(QDir::cleanPath(path), bytes);
}

void ServedPages::dropText(const QString &path)
{
    m_texts.remove(QDir::cleanPath(path));
}

void ServedPages::setFolderOf(const QString &copy, const QString &folder)
{
    m_folders.insert(QDir::cleanPath(copy), folder);
}

bool ServedPages::isClosed(const QString &folder) const
{
    const QString real = QFileInfo(folder).canonicalFilePath();
    return std::any_of(m_closed.cbegin(), m_closed.cend(),
                       [&](const QString &closed) { return QFileInfo(closed).canonicalFilePath() == real; });
}

ServedPages::Place &ServedPages::placeOf(const QString &file, QString &host)
{
    const QString folder = QFileInfo(file).path();
    const bool alone = isClosed(folder);
    const QString allowedAs = m_folders.value(file, alone ? QString() : folder);
    QString &known = m_hosts[alone ? file + QChar(0) + allowedAs : folder];
    if (known.isEmpty()) {
        known = newHost();
        const auto depth = folder.split(u'/', Qt::SkipEmptyParts).size();
        m_places.insert(known, {folder, allowedAs, static_cast<int>(depth), alone, {}});
    }
    host = known;
    return m_places[known];
}

QUrl ServedPages::servedAddress(const QUrl &address)
{
    if (!address.isLocalFile())
        return address;
    const QString file = QDir::cleanPath(address.toLocalFile());
    const QString name = QFileInfo(file).fileName();
    QUrl served;
    QString host;
    Place &place = placeOf(file, host);
    place.pages.insert(name);
    served.setScheme(QLatin1String(PageScheme));
    served.setHost(host);
    served.setPath(u'/' + Step.repeated(place.depth) + name, QUrl::DecodedMode);
    if (address.hasQuery())
        served.setQuery(address.query(QUrl::FullyEncoded), QUrl::TolerantMode);
    if (address.hasFragment())
        served.setFragment(address.fragment(QUrl::FullyEncoded), QUrl::TolerantMode);
    return served;
}

QUrl ServedPages::ownAddress(const QUrl &served) const
{
    const Place *place = knownPlace(served);
    if (!place)
        return served;
    const QString path = served.path(QUrl::FullyDecoded);
    const int steps = stepsOf(path, place->depth);
    const QString up = QStringLiteral("../").repeated(place->depth - steps);
    QUrl own = QUrl::fromLocalFile(
        QDir::cleanPath(place->folder + u'/' + up + path.sliced(qMin(path.size(), 1 + steps * Step.size()))));
    if (served.hasQuery())
        own.setQuery(served.query(QUrl::FullyEncoded), QUrl::TolerantMode);
    if (served.hasFragment())
        own.setFragment(served.fragment(QUrl::FullyEncoded), QUrl::TolerantMode);
    return own;
}

std::optional<QString> ServedPages::wayOf(const QUrl &served, const Place &place)
{
    const QString path = served.path(QUrl::FullyDecoded);
    if (!path.startsWith(u'/') || stepsOf(path, place.depth) != place.depth)
        return std::nullopt;
    return path.sliced(1 + place.depth * Step.size());
}

std::unique_ptr<QIODevice> ServedPages::bytesOf(const Place &place, const QString &way) const
{
    const QString path = joinPath(place.folder, way);
    if (const auto text = m_texts.constFind(QDir::cleanPath(path)); text != m_texts.constEnd())
        return bufferOf(*text);
    if (place.pages.contains(way))
        return pageFiles::openRegular(path);
    if (place.alone || !pageFiles::isPlain(way) || pageFiles::shownType(way).isEmpty())
        return nullptr;
    return pageFiles::openWithin(path, {place.folder, m_closed});
}

const ServedPages::Place *ServedPages::knownPlace(const QUrl &served) const
{
    const auto place = isServed(served) ? m_places.constFind(served.host()) : m_places.constEnd();
    return place == m_places.constEnd() ? nullptr : &*place;
}

std::unique_ptr<QIODevice> ServedPages::bytesAt(const QUrl &served) const
{
    const Place *place = knownPlace(served);
    const std::optional<QString> way = place ? wayOf(served, *place) : std::nullopt;
    return way ? bytesOf(*place, *way) : nullptr;
}

std::optional<PagePart> ServedPages::open(const QUrl &served)
{
    std::unique_ptr<QIODevice> bytes = bytesAt(served);
    if (!bytes)
        return std::nullopt;
    const QByteArray type = pageFiles::pageType(served.fileName(QUrl::FullyDecoded), bytes->peek(Beginning));
    return PagePart{type, std::move(bytes)};
}

bool ServedPages::holdsBack(const QUrl &served) const
{
    return knownPlace(served) && !bytesAt(served) && QFileInfo(ownAddress(served).toLocalFile()).isFile();
}

bool ServedPages::showsOtherHosts(const QUrl &served) const
{
    const Place *place = knownPlace(served);
    return place && !place->allowedAs.isEmpty() && otherHosts::areShown(m_settings, place->allowedAs);
}
