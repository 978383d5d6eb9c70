#pragma once

#include "document/paintList.h"

#include <QStringView>
#include <vector>

/// The colours of what stands in scripts and style sheets: comments, texts in quotes and numbers; the words of the
/// language in scripts, selectors and properties in style sheets.
///
/// It goes through a text from left to right and may stop at any place that it gives back, to go on from there.
class CodeColours
{
public:
    enum class Language { Script, Style };

    explicit CodeColours(Language language = Language::Script) : m_language(language) {}

    /// Appends what is to be painted between `from` and about `until` and gives the place where it stands then, which
    /// is at most `end`, where the code ends. Positions count from 0.
    qsizetype advance(QStringView text, qsizetype from, qsizetype until, qsizetype end,
                      std::vector<PaintRange> &paints);

private:
    enum class Part : quint8 { Start, Selector, Property, Value };

    qsizetype scriptStep(QStringView text, qsizetype place, std::vector<PaintRange> &paints);
    qsizetype styleStep(QStringView text, qsizetype place, std::vector<PaintRange> &paints);
    bool mayBeginRegularExpression() const;

    Language m_language;
    char16_t m_previous = u';'; ///< the last character of a script that counts
    Part m_part = Part::Start;  ///< of a style sheet's statement
};
