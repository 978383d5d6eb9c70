#include "document/pairedNames.h"

#include "common/textSurface.h"
#include "document/markupCharacters.h"
#include "document/tagPairs.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr qsizetype LongestName = 64;

struct Name {
    qsizetype start = 0;
    qsizetype length = 0;
};

/// The name of a tag that the selection lies in, be it empty; nothing elsewhere.
std::optional<Name> nameAround(const TextSurface &edit)
{
    const qsizetype first = edit.SelStart();
    const qsizetype from = std::max<qsizetype>(first - LongestName, 0);
    const QString part = edit.textPart(from, LongestName + edit.SelLength() + LongestName);
    qsizetype start = first - from;
    while (start > 0 && isNameCharacter(part[start - 1]))
        --start;
    const bool isTag = start > 0 && (part[start - 1] == u'<' || part.first(start).endsWith(QStringLiteral("</")));
    if (!isTag)
        return std::nullopt;
    qsizetype end = start;
    while (end < part.size() && isNameCharacter(part[end]))
        ++end;
    if (first - from + edit.SelLength() > end)
        return std::nullopt;
    return Name{from + start, end - start};
}
} // namespace

std::optional<PairedNames::Names> PairedNames::namesAt(const TextSurface &edit)
{
    if (edit.SelLength() > LongestName)
        return std::nullopt;
    const std::optional<Name> name = nameAround(edit);
    if (!name)
        return std::nullopt;
    return Names{name->start, name->length, {}, 0, edit.textLength()};
}

void PairedNames::beforeKey(const TextSurface &edit)
{
    m_keyed = true;
    std::optional<Names> now = namesAt(edit);
    const bool isKnown = now && m_names && now->start == m_names->start && now->length == m_names->length &&
                         now->textLength == m_names->textLength;
    if (isKnown)
        return;
    if (now && now->length > 0) {
        const std::optional<TagPair> pair = tagPairAt(edit.Text(), now->start);
        if (pair && pair->tag.nameStart == now->start) {
            now->partner = pair->partner.nameStart;
            now->partnerLength = pair->partner.name.size();
        }
    }
    m_names = now;
}

bool PairedNames::follow(TextSurface &edit)
{
    if (!std::exchange(m_keyed, false) || !m_names) {
        m_names.reset();
        return false;
    }
    Names &names = *m_names;
    const qsizetype grown = edit.textLength() - names.textLength;
    names.length += grown;
    names.textLength += grown;
    const QString name = names.length < 0 ? QString() : edit.textPart(names.start, names.length);
    const bool isName = names.length >= 0 && std::all_of(name.begin(), name.end(), isNameCharacter);
    if (!isName) {
        m_names.reset();
        return false;
    }
    if (!names.partner)
        return false;
    const bool isBehind = *names.partner > names.start;
    if (isBehind)
        *names.partner += grown;
    if (edit.textPart(*names.partner, names.partnerLength) == name)
        return false;
    const qsizetype partnerGrows = name.size() - names.partnerLength;
    const qsizetype caret = edit.SelStart() + (isBehind ? 0 : partnerGrows);
    const qsizetype top = edit.firstVisibleLine();
    edit.setPaintingHeld(true);
    edit.setSelStart(*names.partner);
    edit.setSelLength(names.partnerLength);
    edit.setSelText(name);
    edit.setSelStart(caret);
    if (edit.firstVisibleLine() != top)
        edit.scrollToLine(top);
    edit.setPaintingHeld(false);
    if (!isBehind)
        names.start += partnerGrows;
    names.partnerLength = name.size();
    names.textLength += partnerGrows;
    return true;
}
