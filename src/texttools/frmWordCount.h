#pragma once

#include "forms/dialogForm.h"

class QLabel;

/// Tells how long the selection is, or the whole document without one.
class frmWordCount final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmWordCount(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void count();

    QLabel *lblWords = nullptr;
    QLabel *lblCharTotal = nullptr;
    QLabel *lblElements = nullptr;
    QLabel *lblHyperlinks = nullptr;
};
