#include "insertion/imagePreview.h"

#include "common/numbers.h"
#include "pictures/pictureLoader.h"
#include "widgets/pictureBox.h"

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <algorithm>
#include <optional>

namespace
{
constexpr int LongestSide = 32767; // no desktop shows a larger one
constexpr QSize LargestPixels(1280, 1024);
constexpr QSize LeastFrame(220, 220);

enum Page { StandBy, Image };

/// Nothing where the side is to stay as it is.
std::optional<int> sideLength(const QString &field, bool inPercent, int actual)
{
    if (field.isEmpty() && !inPercent)
        return std::nullopt;
    const qint64 number = wholeNumber(field);
    const qint64 length = inPercent ? number * actual / 100 : number;
    return static_cast<int>(std::clamp<qint64>(length, 0, LongestSide));
}

QLabel *standByText()
{
    QLabel *lblNoPicture = ui::label(QStringLiteral("lblNoPicture"), QStringLiteral("(Preview not available)"));
    lblNoPicture->setAlignment(Qt::AlignCenter);
    lblNoPicture->setFrameShape(QFrame::StyledPanel); // as the image's frame has it
    return lblNoPicture;
}
} // namespace

ui::Node ImagePreview::build()
{
    imgProcess = ui::picture(QStringLiteral("imgProcess"));
    imgPreview = ui::picture(QStringLiteral("imgPreview"));
    imgPreview->setFit(PictureBox::Fit::Stretch);
    imgPreview->setAccessibleName(QStringLiteral("Preview of the image"));
    auto *frame = new QScrollArea;
    frame->setAlignment(Qt::AlignCenter);
    frame->setAccessibleName(QStringLiteral("Preview of the image"));
    frame->setWidget(imgPreview);
    m_pages = new QStackedWidget;
    m_pages->insertWidget(StandBy, standByText());
    m_pages->insertWidget(Image, frame);
    m_pages->setMinimumSize(LeastFrame);
    return ui::column({ui::Node(m_pages, 1), ui::hidden(imgProcess)});
}

bool ImagePreview::show(const QString &file)
{
    const std::optional<LoadedPicture> loaded = LoadPicture(file, LargestPixels);
    if (!loaded)
        return false;
    imgProcess->setFixedSize(loaded->size.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
    imgPreview->setFixedSize(loaded->size.boundedTo(QSize(LongestSide, LongestSide)));
    imgPreview->setPicture(QPixmap::fromImage(loaded->pixels));
    m_pages->setCurrentIndex(loaded->pixels.isNull() ? StandBy : Image);
    return true;
}

void ImagePreview::clear()
{
    imgPreview->setPicture({});
    m_pages->setCurrentIndex(StandBy);
}

QSize ImagePreview::actualSize() const
{
    return imgProcess->size();
}

void ImagePreview::resize(const QString &width, const QString &height, bool inPercent)
{
    if (const std::optional<int> length = sideLength(width, inPercent || width.endsWith(u'%'), actualSize().width()))
        imgPreview->setFixedWidth(*length);
    if (const std::optional<int> length = sideLength(height, inPercent || height.endsWith(u'%'), actualSize().height()))
        imgPreview->setFixedHeight(*length);
}
