#include "unit/document/scanHelpers.h"

void scanAll(SyntaxScanner &scanner, bool structureShown, int cancelAt)
{
    scanner.setStructureShown(structureShown);
    for (int place = 1; scanner.advance(); ++place) {
        if (place == cancelAt)
            scanner.cancel();
    }
}

std::vector<CharacterFormat> formatsAfter(const QString &text, const SyntaxScanner &scanner,
                                          const ColouringOptions &options, const CharacterFormat &before)
{
    std::vector<CharacterFormat> formats(static_cast<std::size_t>(text.size()), before);
    for (const FormatRange &range : scanner.paints().formats(options)) {
        for (qsizetype i = range.start; i < range.start + range.length; ++i) {
            CharacterFormat &format = formats.at(static_cast<std::size_t>(i));
            format.colour = range.format.colour.value_or(format.colour);
            format.bold = range.format.bold.value_or(format.bold);
            format.underline = range.format.underline.value_or(format.underline);
        }
    }
    return formats;
}

std::string lookOf(const std::vector<CharacterFormat> &formats, const ColouringOptions &options)
{
    const std::pair<CharacterFormat, char> looks[] = {
        {{WindowTextColour, false, false}, '.'},          {{WindowTextColour, false, true}, 'u'},
        {{options.ColourCodeTag, true, false}, 'T'},      {{options.ColourCodeAttribute, false, false}, 'a'},
        {{options.ColourCodeValue, false, false}, 'v'},   {{options.ColourCodeValue, true, false}, 'V'},
        {{options.ColourCodeComment, false, false}, 'c'}, {{options.ColourASPCode, false, false}, '%'},
        {{options.ColourCodeURL, false, true}, 'l'},      {{options.ColourCodeURL, true, true}, 'L'},
    };
    std::string result;
    for (const CharacterFormat &format : formats) {
        const auto *const look =
            std::find_if(std::begin(looks), std::end(looks), [&](const auto &each) { return each.first == format; });
        result += look == std::end(looks) ? '?' : look->second;
    }
    return result;
}

std::vector<std::string> nodesOf(const StructureTree &tree)
{
    std::vector<std::string> result;
    for (const StructureNode &node : tree.nodes()) {
        const QStringList parts = {node.key(), QString(node.image), node.text, QString::number(node.parent)};
        result.push_back(parts.join(u'|').toStdString());
    }
    return result;
}
