// The tag around the caret, as each dialog reads it into its fields and writes it back.
#include "fuzz/fuzzInput.h"
#include "insertion/appletElement.h"
#include "insertion/imageElement.h"
#include "insertion/objectElement.h"
#include "insertion/tagValues.h"

namespace
{
template <class Read, class Fields, class Markup>
void readBy(const Read &read, const Fields &fields, const Markup &markup, const QString &text, qsizetype caret)
{
    const std::optional<TagUnderCaret> tag = read(text, caret, 0);
    if (!tag)
        return;
    HAS_TO_HOLD(tag->start >= 0 && tag->length > 0 && tag->start + tag->length <= text.size());
    HAS_TO_HOLD(text[tag->start] == u'<' && text[tag->start + tag->length - 1] == u'>');
    HAS_TO_HOLD(caret >= tag->start && caret <= tag->start + tag->length);
    (void)markup(fields(*tag));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const int place = input.largeNumber();
    const QString text = input.text();
    const qsizetype caret = place % (text.size() + 1);
    readBy(readImageTag, imageFields, imageMarkup, text, caret);
    readBy(readAppletTag, appletFields, appletMarkup, text, caret);
    readBy(readObjectTag, objectFields, objectMarkup, text, caret);
    HAS_TO_HOLD(tagValues(text, QStringLiteral("<map "), QStringLiteral("name"), 20).size() <= 20);
    return 0;
}
