// The templates that come with the program hold nothing that its own knowledge of HTML calls wrong or old.
#include "dataFiles.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace
{
struct Tag {
    QString name;
    bool closes = false;
    QStringList attributes; ///< names alone
};

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList attributesIn(const QString &text)
{
    static const QRegularExpression attribute(QStringLiteral("([a-zA-Z-]+)(?:=\"[^\"]*\")?"));
    QStringList names;
    for (auto found = attribute.globalMatch(text); found.hasNext();)
        names.append(found.next().captured(1));
    return names;
}

QList<Tag> tagsOf(QString page)
{
    static const QRegularExpression style(QStringLiteral("<style>.*</style>"),
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag(QStringLiteral("<(/?)([a-z][a-z0-9]*)((?:\\s+[^<>]*)?)>"));
    page.remove(style);
    QList<Tag> tags;
    for (auto found = tag.globalMatch(page); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        tags.append({match.captured(2), !match.captured(1).isEmpty(), attributesIn(match.captured(3))});
    }
    return tags;
}

bool isVoid(const QString &name)
{
    return QStringList{QStringLiteral("meta"),  QStringLiteral("link"), QStringLiteral("img"),
                       QStringLiteral("input"), QStringLiteral("br"),   QStringLiteral("hr")}
        .contains(name);
}

class ShippedPages : public testing::TestWithParam<const char *>
{
protected:
    QString page = textOf(QStringLiteral(TEST_SOURCE_DIR "/") + QLatin1String(GetParam()));
    datafiles::Html html = datafiles::readHtml(datafiles::bytesOf(QStringLiteral("Html.tcb")));
};

TEST_P(ShippedPages, CloseWhatTheyOpen)
{
    QStringList open;
    for (const Tag &tag : tagsOf(page)) {
        if (!tag.closes && !isVoid(tag.name))
            open.append(tag.name);
        if (!tag.closes)
            continue;
        ASSERT_FALSE(open.isEmpty()) << tag.name.toStdString();
        EXPECT_EQ(open.takeLast(), tag.name);
    }
    EXPECT_EQ(open, QStringList());
}

TEST_P(ShippedPages, UseElementsAndAttributesOfToday)
{
    for (const Tag &tag : tagsOf(page)) {
        const datafiles::Element *element = html.element(tag.name);
        ASSERT_TRUE(element) << tag.name.toStdString();
        EXPECT_FALSE(element->deprecated) << tag.name.toStdString();
        for (const QString &name : tag.attributes) {
            const datafiles::Attribute *attribute = element->attribute(name + u'=');
            if (!attribute)
                attribute = element->attribute(name);
            ASSERT_TRUE(attribute) << tag.name.toStdString() << ' ' << name.toStdString();
            EXPECT_FALSE(attribute->deprecated) << tag.name.toStdString() << ' ' << name.toStdString();
        }
    }
}

TEST_P(ShippedPages, NameWhatEveryPageNeeds)
{
    EXPECT_TRUE(page.startsWith(QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">")));
    EXPECT_TRUE(page.contains(QStringLiteral("<meta charset=\"utf-8\">")));
    // No name is proposed for a file whose page still has this title.
    EXPECT_TRUE(page.contains(QStringLiteral("<title>Enter_Title_Here</title>")));
    static const QRegularExpression withoutAlt(QStringLiteral("<img(?![^>]*\\balt=)"));
    EXPECT_FALSE(page.contains(withoutAlt));
}

INSTANTIATE_TEST_SUITE_P(Templates, ShippedPages,
                         testing::Values("data/Template/Empty Page.tpl", "data/Template/Page with Navigation.tpl",
                                         "data/Template/Article.tpl", "data/Template/Table Page.tpl",
                                         "data/Template/Form Page.tpl", "tools/templates/card/card.html"));
} // namespace
