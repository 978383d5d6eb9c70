#pragma once

#include "common/colour.h"

#include <QWidget>

class CommonDialogs;
class QLineEdit;
class QPushButton;

/// A colour, shown as a swatch on the button `cmdChange`, which opens the colour dialog, and as the text #RRGGBB, which
/// can be typed over.
class ColourSelection final : public QWidget
{
    Q_OBJECT
public:
    explicit ColourSelection(CommonDialogs &dialogs, QWidget *parent = nullptr);

    QString HexadecimalColour() const; ///< "#RRGGBB"
    ColourValue GetColour() const { return m_colour; }
    void setColour(ColourValue colour); ///< not a choice of the user: raises no change

    QLineEdit *textField() const { return m_text; }
    QPushButton *changeButton() const { return m_change; }

Q_SIGNALS:
    void colourChanged(); ///< by the user

protected:
    void changeEvent(QEvent *event) override;

private:
    void cmdChange_Click();
    void textTyped(const QString &text);
    void choose(ColourValue colour);
    void drawSwatch();

    CommonDialogs &m_dialogs;
    QLineEdit *m_text;
    QPushButton *m_change;
    ColourValue m_colour = 0;
};
