#include "texttools/pageFiles.h"

#include <QRegularExpression>
#include <QUrl>

QString localPathOf(QStringView address)
{
    static const QRegularExpression elsewhere(QStringLiteral(R"(\A([a-z][a-z0-9+.-]*:|//|/|\\|#|\?))"),
                                              QRegularExpression::CaseInsensitiveOption);
    const QString text = address.trimmed().toString();
    // Templates of servers and scripts fill in what is not known here.
    if (text.isEmpty() || elsewhere.match(text).hasMatch() || text.contains(u'{') || text.contains(u'<') ||
        text.contains(u'&'))
        return {};
    const qsizetype end = text.indexOf(QRegularExpression(QStringLiteral("[?#]")));
    return QUrl::fromPercentEncoding((end < 0 ? text : text.left(end)).toUtf8());
}

void PageFiles::startTag(const html::Token &token)
{
    if (!m_wanted || m_otherBase)
        return;
    const bool base = m_text.mid(token.name.start, token.name.length).compare(u"base", Qt::CaseInsensitive) == 0;
    for (const html::Attribute &attribute : token.attributes) {
        const QStringView name = m_text.mid(attribute.name.start, attribute.name.length);
        const bool names =
            name.compare(u"href", Qt::CaseInsensitive) == 0 || name.compare(u"src", Qt::CaseInsensitive) == 0;
        if (!names || !attribute.valued)
            continue;
        if (base) {
            m_otherBase = true;
            return;
        }
        const QString path = localPathOf(m_text.mid(attribute.value.start, attribute.value.length));
        if (!path.isEmpty())
            m_files.append({attribute.value, path});
    }
}

bool PageFileLook::isThere(const QString &path)
{
    auto known = m_asked.find(path);
    if (known == m_asked.end())
        known = m_asked.insert(path, m_exists(path));
    return *known;
}

void PageFileLook::add(const QList<PageFile> &files)
{
    for (const PageFile &file : files)
        if (!isThere(file.path) && m_problems.wants("missing-file"))
            m_problems.error("missing-file", file.range, QStringLiteral("There is no file \"%1\".").arg(file.path));
}
