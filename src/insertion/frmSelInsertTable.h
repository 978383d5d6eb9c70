#pragma once

#include "forms/form.h"
#include "widgets/layout.h"

#include <QPoint>

class QFrame;
class QLabel;

/// The grid that drops down from the bar of insertions: a sweep over its cells and a click make a plain table of up to
/// five rows and columns. The arrow keys and Enter do the same. It is no dialog: the main window takes input all the
/// while, and leaving the grid for it closes it.
class frmSelInsertTable final : public Form
{
    Q_OBJECT
public:
    explicit frmSelInsertTable(ProgramContext &context);

protected:
    QWidget *createWindow() override;
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *border();
    ui::Node cellGrid();
    PictureBox *cell(int row, int column);
    PictureBox *processBar();
    void place();
    void sweepTo(int rows, int columns);
    void leaveCells();
    void Form_LostFocus();
    void lblProcess_Click();
    bool keyDown(int key);
    void makeTable(int rows, int columns);

    QFrame *fmeBorder = nullptr;
    QLabel *lblProcess = nullptr;
    QList<PictureBox *> m_cells; ///< row by row
    int m_rows = 0;              ///< of the block that is lit, from 1; 0 for none
    int m_columns = 0;
};

/// The number of the cell in a row and column, all three counted from 1: cells are numbered in square shells around the
/// first one, so that a larger square has the higher numbers.
int tableCellNumber(int row, int column);
