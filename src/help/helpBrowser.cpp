#include "help/helpBrowser.h"

#include "help/helpFolder.h"
#include "help/helpStyle.h"
#include "help/helpTopics.h"

#include <QEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace
{
constexpr int smallestZoom = -4;
constexpr int largestZoom = 12;
constexpr qreal pageMargin = 18;
constexpr qreal listIndent = 26;
} // namespace

HelpBrowser::HelpBrowser(HelpFolder &folder, QWidget *parent) : QTextBrowser(parent), m_folder(folder)
{
    setObjectName(QStringLiteral("helpBrowser"));
    setAccessibleName(QStringLiteral("Help page"));
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    document()->setDocumentMargin(pageMargin);
    document()->setIndentWidth(listIndent);
    applyTheme();
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
}

void HelpBrowser::showPage(const QString &page)
{
    setSource(helpUrl(page));
}

QString HelpBrowser::page() const
{
    return helpPageOfUrl(source()).value_or(QString());
}

void HelpBrowser::setZoom(int points)
{
    const int wanted = qBound(smallestZoom, points, largestZoom);
    zoomIn(wanted - m_zoom);
    m_zoom = wanted;
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    const std::optional<QString> page = helpPageOfUrl(name);
    if (!page)
        return {};
    if (type == QTextDocument::HtmlResource)
        return m_folder.html(*page).value_or(QString());
    const std::optional<QByteArray> bytes = m_folder.bytes(*page);
    return bytes ? QVariant(*bytes) : QVariant();
}

void HelpBrowser::doSetSource(const QUrl &name, QTextDocument::ResourceType type)
{
    const std::optional<QString> page = helpPageOfUrl(name);
    const bool there = page && m_folder.has(*page);
    QTextBrowser::doSetSource(there ? name : helpUrl(HelpFolder::notFoundPage()), type);
}

void HelpBrowser::follow(const QUrl &url)
{
    if (url.scheme() == helpUrl(QString()).scheme())
        setSource(url);
    else
        Q_EMIT linkOutside(url);
}

void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    applyTheme();
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

// The toolkit's own handling of the wheel knows no smallest and no largest size.
void HelpBrowser::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    const int turn = event->angleDelta().y();
    setZoom(m_zoom + (turn > 0 ? 1 : turn < 0 ? -1 : 0));
    event->accept();
}

void HelpBrowser::applyTheme()
{
    document()->setDefaultStyleSheet(helpStyleSheet(palette()));
}
