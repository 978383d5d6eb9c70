#include "document/syntaxScanner.h"
#include "unit/document/colouringReference.h"
#include "unit/document/randomTexts.h"
#include "unit/document/scanHelpers.h"

#include <gtest/gtest.h>

namespace
{
// What single letters would hit upon too rarely.
const QStringList Words =
    MarkupCharacters +
    QStringList{
        QStringLiteral("\r\n"),    QStringLiteral("<!--"),    QStringLiteral("-->"),     QStringLiteral("<%"),
        QStringLiteral("%>"),      QStringLiteral("<p>"),     QStringLiteral("<p "),     QStringLiteral("<P "),
        QStringLiteral("</p>"),    QStringLiteral("<div "),   QStringLiteral(" align="), QStringLiteral("align="),
        QStringLiteral("left"),    QStringLiteral("RIGHT"),   QStringLiteral("center"),  QStringLiteral("<b>"),
        QStringLiteral("<h2"),     QStringLiteral("<A "),     QStringLiteral("<img "),   QStringLiteral("WWW."),
        QStringLiteral("file://"), QStringLiteral("mailto:"), QStringLiteral("ftp:"),    QStringLiteral("https:"),
        QStringLiteral("news:"),   QStringLiteral("=\""),
    };

struct RandomPass {
    QString text;
    ColouringOptions options;
    CharacterFormat before{0x010203, false, false};
    bool structureShown = false;
    int cancelAt = 0;
    int toggleAt = 0; ///< the place at which the tree is shown or hidden
};

RandomPass randomPass(RandomTexts &random, const QStringList &alphabet)
{
    RandomPass pass;
    pass.text = random.text(alphabet, random.onceIn(8) ? 120 : 24);
    pass.options.ColourCodeSyntax = !random.onceIn(16);
    pass.options.ColourCodeHyperlink = !random.onceIn(16);
    pass.before = {0x010203, random.onceIn(2), random.onceIn(2)};
    pass.structureShown = !random.onceIn(4);
    pass.cancelAt = random.onceIn(8) ? 1 + random.below(12) : 0;
    pass.toggleAt = random.onceIn(8) ? 1 + random.below(12) : 0;
    return pass;
}

int placesOf(SyntaxScanner &scanner, const RandomPass &pass)
{
    int places = 0;
    scanner.setStructureShown(pass.structureShown);
    while (scanner.advance()) {
        ++places;
        if (places == pass.cancelAt)
            scanner.cancel();
        if (places == pass.toggleAt)
            scanner.setStructureShown(!pass.structureShown);
    }
    return places;
}

int placesOf(ColouringReference &reference, const RandomPass &pass)
{
    int places = 0;
    reference.structurePageVisible = pass.structureShown;
    reference.DoEvents = [&] {
        ++places;
        if (places == pass.cancelAt)
            reference.CancelColouring = true;
        if (places == pass.toggleAt)
            reference.structurePageVisible = !pass.structureShown;
    };
    reference.RecolourDocument();
    return places;
}

std::vector<std::string> nodesOf(const ColouringReference &reference)
{
    std::vector<std::string> result;
    for (const ColouringReference::Node &node : reference.Nodes)
        result.push_back(
            QStringList{node.key, node.image, node.text, QString::number(node.parent)}.join(u'|').toStdString());
    return result;
}

testing::AssertionResult agrees(const RandomPass &pass)
{
    SyntaxScanner scanner(pass.text, pass.options);
    ColouringReference reference(pass.text, pass.before, pass.options);
    const int places = placesOf(scanner, pass);
    const int expectedPlaces = placesOf(reference, pass);
    auto failure = testing::AssertionFailure() << testing::PrintToString(pass.text.toStdString()) << " cancelled at "
                                               << pass.cancelAt << ", toggled at " << pass.toggleAt << ": ";
    const auto formats = formatsAfter(pass.text, scanner, pass.options, pass.before);
    if (formats != reference.txtEdit.formats())
        return failure << lookOf(formats, pass.options) << " instead of "
                       << lookOf(reference.txtEdit.formats(), pass.options);
    if (nodesOf(scanner.structure()) != nodesOf(reference))
        return failure << testing::PrintToString(nodesOf(scanner.structure())) << " instead of "
                       << testing::PrintToString(nodesOf(reference));
    if (places != expectedPlaces)
        return failure << places << " places instead of " << expectedPlaces;
    return testing::AssertionSuccess();
}

TEST(SyntaxScannerRandom, AgreesWithTheReferenceOnShortTexts)
{
    RandomTexts random(20260301);
    for (int i = 0; i < 100000; ++i)
        ASSERT_TRUE(agrees(randomPass(random, MarkupCharacters))) << "text " << i;
}

TEST(SyntaxScannerRandom, AgreesWithTheReferenceOnTextsOfWords)
{
    RandomTexts random(20260302);
    for (int i = 0; i < 60000; ++i)
        ASSERT_TRUE(agrees(randomPass(random, Words))) << "text " << i;
}

TEST(SyntaxScannerRandom, AgreesWithTheReferenceAroundTheLimit)
{
    RandomTexts random(20260303);
    for (const int size : {63999, 64000, 64001}) {
        RandomPass pass = randomPass(random, Words);
        pass.options = {};
        pass.cancelAt = 0;
        while (pass.text.size() < size)
            pass.text += random.text(Words, 40) + QString(200, u'x');
        pass.text.truncate(size);
        ASSERT_TRUE(agrees(pass)) << size;
    }
}
} // namespace
