#pragma once

#include "insertion/insertionForm.h"

class QCalendarWidget;
class QListWidget;

/// Writes a date, with the present time where the chosen format has one.
class frmDateTime final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmDateTime(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    void fillFormats();

    QListWidget *lstDateTime = nullptr;
    QCalendarWidget *monDate = nullptr;
};
