#pragma once

#include "services/pageViews.h"
#include "services/programPart.h"

/// Loads the page engine's module. Its views end with this object.
class ModulePageViews final : public PageViews
{
public:
    /// `source` outlives this object.
    ModulePageViews(const QStringList &folders, PageSource &source);
    ~ModulePageViews() override;

    PageEngine *engine() override;
    QString reasonForNone() const override { return m_reason; }
    PageSource &source() override { return m_source; }

private:
    PageEngine *load();

    ProgramPart m_part;
    PageSource &m_source;
    PageEngine *m_engine = nullptr;
    QString m_reason;
};

/// Why pages cannot be kept apart from the rest of this machine, for the user to read; empty if they can. The engine
/// ends the whole process where it finds that out by itself.
QString reasonAgainstPages();
