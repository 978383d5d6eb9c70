#include "papers/desktopPapers.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QSvgGenerator>

namespace
{
class DesktopPrinter final : public PaperPrinter
{
public:
    QPagedPaintDevice &device() override { return m_printer; }
    bool isValid() const override { return m_printer.isValid(); }
    bool hasFailed() const override { return m_printer.printerState() == QPrinter::Error; }
    void setTitle(const QString &title) override { m_printer.setDocName(title); }
    void abort() override { m_printer.abort(); }

    std::optional<int> showDialog(QWidget *owner) override
    {
        QPrintDialog dialog(&m_printer, owner);
        if (dialog.exec() != QDialog::Accepted)
            return std::nullopt;
        const int copies = qMax(m_printer.copyCount(), 1);
        m_printer.setCopyCount(1); // the program prints one run for each copy itself
        return copies;
    }

private:
    QPrinter m_printer{QPrinter::HighResolution};
};
} // namespace

std::unique_ptr<PaperPrinter> DesktopPapers::newPrinter()
{
    return std::make_unique<DesktopPrinter>();
}

std::unique_ptr<QPaintDevice> DesktopPapers::newSvg(QIODevice &out, const QSizeF &size)
{
    auto generator = std::make_unique<QSvgGenerator>();
    generator->setOutputDevice(&out);
    generator->setDescription({});
    generator->setSize(size.toSize());
    generator->setViewBox(QRectF(QPointF(), size));
    return generator;
}
