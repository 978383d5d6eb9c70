#pragma once

#include <QTableWidget>

/// A grid with one character a cell. Cells are numbered from 0, row by row; the arrow keys move among them.
class CharacterGrid final : public QTableWidget
{
    Q_OBJECT
public:
    /// Stands for a cell that shows nothing and selects nothing.
    static constexpr QChar NoCharacter = QChar::Null;

    explicit CharacterGrid(QWidget *parent = nullptr);

    /// Fills the grid row by row; the first character is selected.
    void setCharacters(const QString &characters, int columns);
    QString characters() const { return m_characters; }
    int selectedCell() const;          ///< -1 in an empty grid
    QString selectedCharacter() const; ///< empty for a cell without one
    void selectCell(int cell);
    QModelIndex indexOf(int cell) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void cellPicked();
    void cellChosen(); ///< double click

protected:
    void changeEvent(QEvent *event) override;

private:
    QString characterAt(int cell) const;
    void fillCell(int cell);
    void sizeCells();
    int cellSize() const;

    QString m_characters;
};
