#include "insertion/markupBook.h"

#include "common/habits.h"
#include "common/numbers.h"
#include "insertion/characterEntity.h"

namespace
{
/// Markup as it is made, which is how it has always been written.
class ClassicMarkup final : public MarkupBook
{
public:
    QString written(const QString &made, const QString & /*page*/) const override { return made; }
    MarkupPair writtenAround(const MarkupPair &made, const QString & /*page*/) const override { return made; }
    QString entity(QChar character) const override { return characterEntity(character); }

    TagUnderCaret tagForFields(const TagUnderCaret &found, TagReader /*read*/, const QString & /*text*/) const override
    {
        return found;
    }
    ImageFields imageFields(const TagUnderCaret &tag) const override { return ::imageFields(tag); }
    QString sizeLeft(const QString &text) const override
    {
        return text.isEmpty() ? QString() : QString::number(wholeNumber(text));
    }

    bool imagesNeedSource() const override { return false; }
    bool closesVideoStart() const override { return false; }
    bool dialogsBeginAnew() const override { return false; }
};

/// Markup as today's HTML wants it, whatever it was made as.
class TodaysMarkup final : public MarkupBook
{
public:
    QString written(const QString &made, const QString &page) const override
    {
        return rightMarkup(made, markupLanguage(page));
    }
    MarkupPair writtenAround(const MarkupPair &made, const QString &page) const override
    {
        return rightMarkupAround(made, markupLanguage(page));
    }
    QString entity(QChar character) const override { return rightCharacterEntity(character); }

    /// Values without quotes, or in single ones, are known once the tag is put right.
    TagUnderCaret tagForFields(const TagUnderCaret &found, TagReader read, const QString &text) const override
    {
        const QString right = rightMarkup(text.sliced(found.start, found.length), MarkupLanguage::Html);
        TagUnderCaret again = read(right, 1, 0).value_or(found);
        again.start = found.start;
        again.length = found.length;
        return again;
    }
    ImageFields imageFields(const TagUnderCaret &tag) const override { return imageFieldsWithTheirUnits(tag); }
    QString sizeLeft(const QString &text) const override
    {
        return text.isEmpty() || text.endsWith(u'%') ? text : QString::number(wholeNumber(text));
    }

    bool imagesNeedSource() const override { return true; }
    bool closesVideoStart() const override { return true; }
    bool dialogsBeginAnew() const override { return true; }
};
} // namespace

const MarkupBook &markupBook(const Habits &habits)
{
    static const ClassicMarkup classic;
    static const TodaysMarkup todays;
    return habits.HabitMarkup ? static_cast<const MarkupBook &>(todays) : classic;
}
