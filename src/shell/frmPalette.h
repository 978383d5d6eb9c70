#pragma once

#include "forms/form.h"
#include "shell/paletteList.h"

class ListView;
class QKeyEvent;
class QLineEdit;

/// Finds a file or a command by a few letters. It goes once something is chosen, by Escape, and when it is left.
class frmPalette final : public Form
{
    Q_OBJECT
public:
    explicit frmPalette(ProgramContext &context);

    /// What it lists the next time it opens, and the titles over an entry's text and detail.
    struct Contents {
        QString caption;
        QString textTitle;
        QString detailTitle;
        QList<PaletteEntry> entries;
    };
    /// Opens it with that, and without letters; anew if it is open.
    void ShowContents(const Contents &contents);

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Deactivate() override;

private:
    void txtPalette_Change();
    bool keyDown(const QKeyEvent &key);
    void moveSelection(int rows);
    void choose();

    Contents m_contents;
    QList<qsizetype> m_shown; ///< the entries that the list shows, by their numbers
    QLineEdit *txtPalette = nullptr;
    ListView *lstPalette = nullptr;
};
