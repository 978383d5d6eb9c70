#pragma once

#include <QString>

class PageEngine;
class PageSource;

/// Where the program gets its page views from.
class PageViews
{
public:
    PageViews() = default;
    PageViews(const PageViews &) = delete;
    PageViews &operator=(const PageViews &) = delete;
    virtual ~PageViews() = default;

    /// The engine, which the first call loads. Nothing where this machine cannot have it; the next call tries again.
    virtual PageEngine *engine() = 0;
    /// Why the last call of engine() gave nothing, for the user to read.
    virtual QString reasonForNone() const = 0;
    /// Where all pages come from.
    virtual PageSource &source() = 0;
};
