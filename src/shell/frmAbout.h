#pragma once

#include "forms/form.h"

/// Tells version, licence and the parts that the program is made of.
class frmAbout final : public Form
{
    Q_OBJECT
public:
    explicit frmAbout(ProgramContext &context);

    /// Shows what is known of the machine; where nothing is, a message tells so.
    void StartSysInfo();
    /// One thing that is known of the machine, by its name ("Qt"); empty if it is not known.
    QString GetKeyValue(const QString &name) const;

protected:
    void prepareLoad() override;
    void Form_Load() override;
    void Form_Unload() override;
};
