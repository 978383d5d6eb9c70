#pragma once

#include "services/paperEngine.h"

#include <QObject>

/// The desktop's printers, and drawings as files, by the toolkit's own means.
class DesktopPapers final : public QObject, public PaperEngine
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.tagwrighter.PaperEngine/1")
    Q_INTERFACES(PaperEngine)
public:
    std::unique_ptr<PaperPrinter> newPrinter() override;
    std::unique_ptr<QPaintDevice> newSvg(QIODevice &out, const QSizeF &size) override;
};
