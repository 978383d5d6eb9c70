#include "codeknowledge/codeFiles.h"

#include <algorithm>

HtmlLine htmlLine(QStringView line)
{
    HtmlLine result;
    const auto isMark = [](QChar c) { return c == codeMark || c == deprecatedCodeMark; };
    const QChar *const behindMarks = std::find_if_not(line.begin(), line.end(), isMark);
    if (std::none_of(behindMarks, line.end(), isMark)) { // as good as every line
        result.depth = static_cast<int>(behindMarks - line.begin());
        result.deprecated = std::find(line.begin(), behindMarks, QChar(deprecatedCodeMark)) != behindMarks;
        result.text = line.sliced(result.depth).toString();
        return result;
    }
    for (const QChar c : line) {
        if (c == codeMark || c == deprecatedCodeMark)
            ++result.depth;
        else
            result.text += c;
        result.deprecated = result.deprecated || c == deprecatedCodeMark;
    }
    return result;
}

ElementText elementText(const QString &text)
{
    const qsizetype mark = text.indexOf(u'>');
    if (mark <= 0 || mark == text.size() - 1)
        return {{}, text};
    return {text.first(mark), text.sliced(mark + 1)};
}

AttributeText attributeText(const QString &text)
{
    const qsizetype behindEquals = text.indexOf(u'=') + 1;
    if (behindEquals == 0 || behindEquals == text.size())
        return {text, {}};
    return {text.first(behindEquals), text.sliced(behindEquals)};
}

CssLine cssLine(QStringView line)
{
    if (line.size() >= 2 && line[0] == codeMark && line[1] == codeMark)
        return {true, line.sliced(2).toString()};
    return {false, line.mid(1).toString()};
}
