#pragma once

#include "forms/form.h"

class QLabel;
class QProgressBar;

/// Tells how far the printing is, and lets it be called off.
class frmPrinting final : public Form
{
    Q_OBJECT
public:
    explicit frmPrinting(ProgramContext &context);

    /// Shows the form for so many pages.
    void begin(const QString &title, int pages);
    /// A page, counted from 0, is about to be printed; nothing while the form is not on show.
    void showPage(int page);
    bool wasCancelled() const { return m_cancelled; }
    void end(); ///< takes the form away

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;

private:
    QString m_title;
    int m_pages = 0;
    bool m_cancelled = false;
    QLabel *lblPage = nullptr;
    QProgressBar *prgPages = nullptr;
};
