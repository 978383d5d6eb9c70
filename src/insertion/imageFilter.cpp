#include "insertion/imageFilter.h"

#include "common/habitEffects.h"
#include "common/programState.h"
#include "forms/programContext.h"

namespace
{
QString filterOfOldKinds(const QString &supported)
{
    return QStringLiteral("All Files (*.*)|*.*|%1|*.gif;*.jpg;*.jpeg;*.bmp;*.dib;*.ico;*.cur"
                          "|GIF Files (*.gif)|*.gif|JPEG Files (*.jpg; *.jpeg)|*.jpg;*.jpeg"
                          "|Bitmap Files (*.bmp; *.dib)|*.bmp;*.dib|Icons and Cursor Files (*.ico; *.cur)|*.ico;*.cur")
        .arg(supported);
}

/// The rows that were always there keep their places; the new ones stand behind them.
QString filterOfAllKinds(const QString &supported)
{
    return filterOfOldKinds(supported).replace(QLatin1String("|*.gif;"),
                                               QLatin1String("|*.png;*.svg;*.webp;*.avif;*.apng;*.gif;")) +
           QStringLiteral("|PNG Files (*.png; *.apng)|*.png;*.apng|SVG Drawings (*.svg)|*.svg"
                          "|WebP Files (*.webp)|*.webp|AVIF Files (*.avif)|*.avif");
}
} // namespace

QString imageFilter(const ProgramContext &context, const QString &supported)
{
    return knowsEveryPicture(context.state.habits) ? filterOfAllKinds(supported) : filterOfOldKinds(supported);
}
