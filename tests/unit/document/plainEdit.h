#pragma once

#include "common/textSurface.h"

#include <QString>
#include <vector>

/// The model of an edit surface that the slow reference procedures work on: a plain string, a format for each character
/// and a selection. Written to be obviously right, not to be fast; it shares no code with the program but value types.

/// Thrown by whatever cannot be done; `attempt` turns it into a step that is passed over.
struct FailedStep {
};

template <typename Step>
void attempt(Step step)
{
    try {
        step();
    } catch (const FailedStep &) {
    }
}

namespace reference
{
/// 1-based, 0 for not found; a start below 1 fails.
int find(const QString &text, const QString &what, int start);
/// The last place that ends at or before `start`; a start below 1 fails.
int findBack(const QString &text, const QString &what, int start);
QString mid(const QString &text, int start, int length);
QString lcase(const QString &text);
inline int len(const QString &text)
{
    return static_cast<int>(text.size());
}
} // namespace reference

struct CharacterFormat {
    ColourValue colour = WindowTextColour;
    bool bold = false;
    bool underline = false;
    bool operator==(const CharacterFormat &) const = default;
};

class PlainEdit
{
public:
    explicit PlainEdit(const QString &text, const CharacterFormat &format = {});

    const QString &Text() const { return m_text; }
    int SelStart() const { return m_start; }
    int SelLength() const { return m_length; }
    QString SelText() const { return m_text.mid(m_start, m_length); }

    void setSelStart(int start);   ///< a negative start fails
    void setSelLength(int length); ///< a negative length fails
    void setSelText(const QString &text);

    void setSelColor(ColourValue colour);
    void setSelBold(bool bold);
    void setSelUnderline(bool underline);

    const std::vector<CharacterFormat> &formats() const { return m_formats; }

private:
    QString m_text;
    std::vector<CharacterFormat> m_formats;
    int m_start = 0;
    int m_length = 0;
};
