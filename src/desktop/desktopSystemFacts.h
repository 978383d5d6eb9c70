#pragma once

#include "services/systemFacts.h"

/// The facts of a Linux desktop.
class DesktopSystemFacts final : public SystemFacts
{
public:
    explicit DesktopSystemFacts(const QString &appPath) : m_appPath(appPath) {}
    QList<SystemFact> all() override;
    QString language() const override;

private:
    QString m_appPath;
};
