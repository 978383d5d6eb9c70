#pragma once

#include <QByteArrayView>
#include <QSize>
#include <optional>

/// The size in pixels, as a browser shows it, of a picture in an AVIF file, by the file's header alone: nothing here
/// decodes such pictures. Nothing if the bytes are no AVIF file, or one that tells no size of its main picture.
std::optional<QSize> avifSize(QByteArrayView file);
