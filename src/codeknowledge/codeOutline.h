#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

class CodeBranch;

/// What the code tree shows of a data file before anything in it is opened: the nodes right under the root. The build
/// makes one of each file that comes with the program, so that a start need not read tens of thousands of lines.
class CodeOutline
{
public:
    struct Row {
        int number = 0;      ///< of the node in its branch
        int children = 0;    ///< how many stand under it
        QByteArrayView line; ///< what the node is made of, in UTF-8
    };

    /// That of the data file of that name, such as "Html.tcb", which comes with the program; nothing if there is none.
    static std::optional<CodeOutline> shipped(const QString &file);
    /// Reads what written() wrote. The rows are views of these bytes; nothing if they are no outline.
    static std::optional<CodeOutline> read(QByteArrayView bytes);
    /// The outline of a branch that was read to its end from these bytes of a file.
    static QByteArray written(const CodeBranch &branch, const QByteArray &file);

    qsizetype fileSize() const { return m_fileSize; }
    quint64 fileDigest() const { return m_fileDigest; } ///< as QuickDigest has it
    int size() const { return m_size; }                 ///< the branch's nodes, its root included
    int count() const { return static_cast<int>(m_rows.size()); }
    const Row &row(int row) const { return m_rows[static_cast<size_t>(row)]; } ///< from 0, by their numbers
    std::optional<int> find(int number) const; ///< the row of a node; nothing if it is the root, or further down
    QString line(int row) const;

private:
    qsizetype m_fileSize = 0;
    quint64 m_fileDigest = 0;
    int m_size = 0;
    std::vector<Row> m_rows;
};
