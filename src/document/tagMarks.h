#pragma once

#include <QtGlobal>
#include <functional>
#include <memory>

class TextSurface;
class Timer;
class TimerSource;

/// Shows the line of the caret, the tag that the caret is at, and that tag's partner, as marks of a surface.
///
/// In a large text the tags are looked for after a pause, so that no key waits for them.
class TagMarks
{
public:
    /// `shown` tells whether they are wanted; the surface outlives this.
    TagMarks(TextSurface &surface, TimerSource &timers, std::function<bool()> shown);
    ~TagMarks();

    void follow(); ///< the caret has moved, or what is wanted may be another
    void textChanged();

private:
    void look();
    void show(bool withTags);

    TextSurface &m_surface;
    std::function<bool()> m_shown;
    qsizetype m_caret = 0;    ///< when the marks were last set
    qsizetype m_length = 0;   ///< of the text, then
    bool m_isNewText = false; ///< it was a text that textChanged has not told of yet
    std::unique_ptr<Timer> m_timer;
};
