#pragma once

#include "insertion/insertionForm.h"
#include "widgets/layout.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;

/// The fields of the font dialog.
struct FontFields {
    QString face = {};
    QString size = {};                          ///< in points; a text that is no number counts as none
    QString colour = QStringLiteral("#010000"); ///< the default stands for none
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool typewriter = false;
};

/// The two texts that a font dialog puts around the selection.
struct FontTags {
    QString opening;
    QString closing; ///< the end tags, by intent in the order of the opening ones and not mirrored
    bool operator==(const FontTags &) const = default;
};
FontTags fontTags(const FontFields &fields);

class frmFont final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFont(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;
    std::optional<QString> closing() const override { return m_tags.closing; }

private:
    ui::Node fontLists();
    ui::Node styleGroup();
    ui::Node sampleGroup();
    FontFields fields() const;
    void showSample();

    QLineEdit *txtFont = nullptr;
    QListWidget *lstFonts = nullptr;
    QLineEdit *txtSize = nullptr;
    QListWidget *lstSize = nullptr;
    ColourSelection *clrFontColour = nullptr;
    QCheckBox *chkBold = nullptr;
    QCheckBox *chkItalic = nullptr;
    QCheckBox *chkUnderline = nullptr;
    QCheckBox *chkStrike = nullptr;
    QCheckBox *chkType = nullptr;
    QLabel *lblSample = nullptr;
    FontTags m_tags; ///< that are being written
};
