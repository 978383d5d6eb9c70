#pragma once

#include <QString>

/// Shows the program's help.
class HelpViewer
{
public:
    HelpViewer() = default;
    HelpViewer(const HelpViewer &) = delete;
    HelpViewer &operator=(const HelpViewer &) = delete;
    virtual ~HelpViewer() = default;

    /// A topic by its path in the help: "::/topics/Index.htm".
    virtual void show(const QString &topic) = 0;
    virtual void contents() = 0; ///< the table of contents
    virtual void index() = 0;
};
