#pragma once

#include "services/pageViews.h"

#include <QStringList>

/// Loads the page engine's module from the first of some folders that has it. The module stays loaded to the end of the
/// process; its views end with this object.
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
    QString moduleFile() const;

    QStringList m_folders;
    PageSource &m_source;
    PageEngine *m_engine = nullptr;
    QString m_reason;
};

/// The folders in which the modules of the running program can stand: beside an installation's binaries, or in a build
/// tree.
QStringList moduleFolders();

/// Why pages cannot be kept apart from the rest of this machine, for the user to read; empty if they can. The engine
/// ends the whole process where it finds that out by itself.
QString reasonAgainstPages();
