// A picture's file as the second process decodes it, and what the program makes of that process's answer.
#include "fuzz/fuzzInput.h"
#include "pictures/pictureLoader.h"
#include "pictures/pictureReader.h"

#include <QBuffer>
#include <QGuiApplication>

namespace
{
constexpr QSize Largest(64, 48);

std::optional<LoadedPicture> loaded(QByteArray answer)
{
    QBuffer buffer(&answer);
    buffer.open(QIODevice::ReadOnly);
    std::optional<LoadedPicture> picture = pictureOfAnswer(buffer, Largest);
    if (picture && !picture->pixels.isNull())
        HAS_TO_HOLD(picture->pixels.width() <= 64 && picture->pixels.height() <= 64);
    return picture;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static const QGuiApplication application(argc, argv);
    const QByteArray bytes = FuzzInput(data, size).rest();
    (void)loaded(bytes);
    QByteArray answer;
    const pictureReader::Steps steps{.send = [&](const QByteArray &part) { answer += part; }, .beforeDrawing = [] {}};
    if (pictureReader::decode(bytes, Largest, steps))
        HAS_TO_HOLD(loaded(answer).has_value());
    return 0;
}
