#include "webview/elementScripts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPointF>
#include <QVariant>

namespace
{
QString json(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QJsonArray arrayOf(const ElementPath &path)
{
    QJsonArray array;
    for (const PageElement &element : path)
        array.append(QJsonArray{element.name, element.number, element.total});
    return array;
}
} // namespace

QString markScript(const ElementPath &path)
{
    static const QString script = QStringLiteral(R"((function (path) {
        if (globalThis.caretMark)
            globalThis.caretMark.cancel();
        globalThis.caretMark = null;
        for (const [name, number, total] of path) {
            const all = document.getElementsByTagName(name);
            if (all.length !== total || !document.body)
                continue;
            const element = all[number];
            if (element === document.body || !document.body.contains(element))
                return;
            const look = {outline: '2px solid #2f7fd6', outlineOffset: '1px'};
            const mark = element.animate([look, look], {duration: 1000, fill: 'both'});
            mark.pause();
            globalThis.caretMark = mark;
            const box = element.getBoundingClientRect();
            if (box.bottom <= 0 || box.top >= innerHeight)
                element.scrollIntoView({block: 'center', inline: 'nearest', behavior: 'instant'});
            return;
        }
    })(%1))");
    return script.arg(json(arrayOf(path)));
}

QString markedTextScript()
{
    return QStringLiteral("globalThis.caretMark ? globalThis.caretMark.effect.target.textContent : ''");
}

QString elementScript(const QPointF &place)
{
    static const QString script = QStringLiteral(R"((function (x, y) {
        const path = [];
        for (let element = document.elementFromPoint(x, y); element; element = element.parentElement) {
            const all = Array.from(document.getElementsByTagName(element.localName));
            path.push([element.localName, all.indexOf(element), all.length]);
        }
        return path;
    })(%1, %2))");
    return script.arg(place.x()).arg(place.y());
}

ElementPath pathOf(const QVariant &answer)
{
    ElementPath path;
    for (const QVariant &each : answer.toList()) {
        const QVariantList parts = each.toList();
        if (parts.size() == 3)
            path.append({parts[0].toString(), parts[1].toLongLong(), parts[2].toLongLong()});
    }
    return path;
}
