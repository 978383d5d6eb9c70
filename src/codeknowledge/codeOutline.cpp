#include "codeknowledge/codeOutline.h"

#include "codeknowledge/codeBranch.h"
#include "common/quickDigest.h"

#include <QResource>
#include <QStringDecoder>
#include <algorithm>
#include <charconv>

namespace
{
/// Takes a number and the character behind it from the front; nothing if there is none.
template <typename Number>
std::optional<Number> takeNumber(QByteArrayView &bytes, char behind, int base = 10)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(bytes.begin(), bytes.end(), number, base);
    if (error != std::errc() || end == bytes.end() || *end != behind)
        return std::nullopt;
    bytes = bytes.sliced(end + 1 - bytes.begin());
    return number;
}
} // namespace

std::optional<CodeOutline> CodeOutline::shipped(const QString &file)
{
    const QResource resource(QStringLiteral(":/codes/%1.outline").arg(file));
    if (!resource.isValid() || resource.compressionAlgorithm() != QResource::NoCompression)
        return std::nullopt;
    return read({resource.data(), static_cast<qsizetype>(resource.size())});
}

std::optional<CodeOutline> CodeOutline::read(QByteArrayView bytes)
{
    const auto fileSize = takeNumber<qsizetype>(bytes, ' ');
    const auto digest = takeNumber<quint64>(bytes, ' ', 16);
    const auto size = takeNumber<int>(bytes, ' ');
    const auto count = takeNumber<int>(bytes, '\n');
    if (!fileSize || !digest || !size || !count || *count < 0 || *count >= *size)
        return std::nullopt;
    CodeOutline outline;
    outline.m_fileSize = *fileSize;
    outline.m_fileDigest = *digest;
    outline.m_size = *size;
    for (int row = 0, before = 0; row < *count; ++row) {
        const auto number = takeNumber<int>(bytes, ' ');
        const auto children = takeNumber<int>(bytes, ' ');
        const qsizetype end = bytes.indexOf('\n');
        if (!number || !children || *number <= before || *number >= *size || *children < 0 || end < 0)
            return std::nullopt;
        outline.m_rows.push_back({*number, *children, bytes.first(end)});
        bytes = bytes.sliced(end + 1);
        before = *number;
    }
    return outline;
}

QByteArray CodeOutline::written(const CodeBranch &branch, const QByteArray &file)
{
    const int count = branch.childCount(0);
    QByteArray text = QByteArray::number(file.size()) + ' ' + QByteArray::number(QuickDigest::of(file), 16) + ' ' +
                      QByteArray::number(branch.size()) + ' ' + QByteArray::number(count) + '\n';
    for (int row = 0; row < count; ++row) {
        const int number = branch.child(0, row);
        text += QByteArray::number(number) + ' ' + QByteArray::number(branch.childCount(number)) + ' ' +
                branch.lineOf(number).toUtf8() + '\n';
    }
    return text;
}

std::optional<int> CodeOutline::find(int number) const
{
    const auto found = std::lower_bound(m_rows.begin(), m_rows.end(), number,
                                        [](const Row &row, int wanted) { return row.number < wanted; });
    if (found == m_rows.end() || found->number != number)
        return std::nullopt;
    return static_cast<int>(found - m_rows.begin());
}

QString CodeOutline::line(int row) const
{
    // A line may begin with a mark of its own, which is part of it.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(m_rows[static_cast<size_t>(row)].line);
}
