#pragma once

#include <QString>

/// A text that many small edits change and that is asked for as one string now and then.
///
/// Edits near one another collect in a patch, so that a typed key costs no more in a large text than in a small one;
/// the string is brought up to date when it is asked for. Positions count from 0.
class PatchedText
{
public:
    void reset(const QString &text);
    /// `removed` characters at `position` give way to `inserted`.
    void replace(qsizetype position, qsizetype removed, QStringView inserted);

    qsizetype length() const { return m_text.size() - m_covered + m_patch.size(); }
    /// The whole text; constant time as long as it stays unchanged.
    const QString &text() const;
    /// A part of it, cut to the text, without bringing the whole up to date.
    QString mid(qsizetype position, qsizetype length) const;

private:
    bool isFar(qsizetype position, qsizetype removed) const;
    void settle() const;

    // The patch stands in place of `m_covered` characters of the text from `m_start` on.
    mutable QString m_text;
    mutable QString m_patch;
    mutable qsizetype m_start = 0;
    mutable qsizetype m_covered = 0;
};
