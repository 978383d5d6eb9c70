#include "project/waitSign.h"

#include "widgets/controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <array>

namespace
{
constexpr int PictureSize = 32;

/// Three boxes joined by lines; the frames fill one box more each, and then none.
QPixmap imlAnimation(int frame, const QPalette &palette, qreal scale)
{
    constexpr std::array<QRectF, 3> boxes{QRectF(2, 3, 11, 8), QRectF(19, 12, 11, 8), QRectF(4, 21, 11, 8)};
    QPixmap picture(QSize(PictureSize, PictureSize) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::WindowText), 1.2));
    painter.drawLine(boxes[0].center(), boxes[1].center());
    painter.drawLine(boxes[1].center(), boxes[2].center());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const bool filled = static_cast<int>(i) + 1 < frame;
        painter.setBrush(palette.brush(filled ? QPalette::Highlight : QPalette::Base));
        painter.drawRoundedRect(boxes[i], 1.5, 1.5);
    }
    return picture;
}
} // namespace

WaitSign::WaitSign(QPushButton *cmdCancel, QWidget *parent) : QWidget(parent)
{
    imgAnimation = ui::label(QStringLiteral("imgAnimation"), {});
    imgAnimation->setFixedSize(PictureSize, PictureSize);
    QLabel *Label1 = ui::label(QStringLiteral("Label1"),
                               QStringLiteral("Please wait while Tagwrighter draws your website's layout..."));
    Label1->setWordWrap(true);
    prgPages = new QProgressBar;
    prgPages->setObjectName(QStringLiteral("prgPages"));
    prgPages->setAccessibleName(QStringLiteral("Pages drawn"));
    prgPages->setTextVisible(false);
    prgPages->setFixedHeight(6);

    constexpr int Gap = 6;
    auto *words = new QVBoxLayout;
    words->setSpacing(Gap);
    words->addStretch();
    words->addWidget(Label1);
    words->addWidget(prgPages);
    words->addStretch();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * Gap, Gap, 2 * Gap, Gap);
    layout->setSpacing(2 * Gap);
    layout->addWidget(imgAnimation);
    layout->addLayout(words, 1);
    layout->addWidget(cmdCancel);
    setAutoFillBackground(true);
}

void WaitSign::showFrame(int frame)
{
    imgAnimation->setPixmap(imlAnimation(frame, palette(), devicePixelRatioF()));
}

void WaitSign::showProgress(int done, int all)
{
    prgPages->setMaximum(std::max(all, 1)); // a bar without pages would move by itself
    prgPages->setValue(done);
    prgPages->setToolTip(QStringLiteral("%1 of %2 pages").arg(done).arg(all));
}
