#pragma once

#include "services/printing.h"

#include <QWidget>

/// One page of a print job as it will stand on paper, drawn as large as the widget lets it be.
class PrintedSheet final : public QWidget
{
    Q_OBJECT
public:
    explicit PrintedSheet(QWidget *parent = nullptr);

    /// `size` is the paper within its margins, in points.
    void setJob(const PrintJob &job, const QSizeF &size);
    int page() const { return m_page; }
    /// A page, counted from 0; cut to those that there are.
    void setPage(int page);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    PrintJob m_job;
    QSizeF m_size{523, 770};
    int m_page = 0;
};
