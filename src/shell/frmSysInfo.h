#pragma once

#include "forms/form.h"
#include "services/systemFacts.h"

class ListView;

/// Shows what is known of the machine, and copies it as text for a report.
class frmSysInfo final : public Form
{
    Q_OBJECT
public:
    explicit frmSysInfo(ProgramContext &context);

    void setFacts(const QList<SystemFact> &facts) { m_facts = facts; } ///< before it is shown

protected:
    void Form_Load() override;

private:
    void cmdCopy_Click();

    QList<SystemFact> m_facts;
};

/// The facts as text, a line each.
QString factsText(const QList<SystemFact> &facts);
