#pragma once

#include <QString>

/// Find over LCase(text), without making the lower-case copy: 1-based, 0 for not found, `start` at least 1.
/// `what` is in lower case and holds a character that has no case.
qsizetype FindInLCase(QStringView text, QStringView what, qsizetype start);

/// The next place of one text in another, asked for from ever later starts: each stretch is searched once, however
/// often the same place is the answer.
class NextOccurrence
{
public:
    enum class Case { Exact, Lower };

    /// Both texts must outlive the object. With `Case::Lower` it searches as FindInLCase does.
    NextOccurrence(QStringView text, QStringView what, Case mode = Case::Exact)
        : m_text(text), m_what(what), m_mode(mode)
    {
    }

    /// 1-based, 0 for not found, as Find gives it; `start` at least 1.
    qsizetype Find(qsizetype start);

private:
    // What was found for one start holds for every start from there up to the place found.
    bool isKnown(qsizetype start) const { return start >= m_from && (m_found == 0 || start <= m_found); }

    QStringView m_text;
    QStringView m_what;
    Case m_mode;
    qsizetype m_from = 1;
    qsizetype m_found = -1;
};
