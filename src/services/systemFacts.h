#pragma once

#include "common/encodings.h"

#include <QList>
#include <QString>

/// One thing that is known of the machine and of the program on it.
struct SystemFact {
    QString name; ///< as it is shown: "Qt", "Desktop", "Memory"
    QString value;
};

/// What a report of a fault would tell: versions, memory, folders. Nothing personal but the paths of folders.
class SystemFacts
{
public:
    SystemFacts() = default;
    SystemFacts(const SystemFacts &) = delete;
    SystemFacts &operator=(const SystemFacts &) = delete;
    virtual ~SystemFacts() = default;

    virtual QList<SystemFact> all() = 0; ///< empty where nothing can be found out
    /// How the desktop's own text files end their lines.
    virtual LineEnd lineEnd() const { return LineEnd::Lf; }
    /// The language of the desktop, as pages name it: "en", "de-CH".
    virtual QString language() const { return QStringLiteral("en"); }
};
