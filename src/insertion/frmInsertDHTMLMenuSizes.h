#pragma once

#include <QSize>

/// The menu designer's sample of colours and its preview, in logical pixels.
constexpr QSize SampleSize(240, 72);
constexpr int SampleBarHeight = 18;
constexpr QSize PreviewSize(480, 170);
