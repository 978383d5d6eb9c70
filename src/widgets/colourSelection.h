#pragma once

#include "common/colour.h"

#include <QWidget>
#include <functional>
#include <optional>

class QLineEdit;
class QPushButton;

/// A colour, shown as a swatch on the button `cmdChange`, which asks for another one, and as the text #RRGGBB, which
/// can be typed over.
class ColourSelection final : public QWidget
{
    Q_OBJECT
public:
    /// Asks the user for a colour, given the present one; nothing when it is left without a choice.
    using Pick = std::function<std::optional<ColourValue>(ColourValue)>;

    explicit ColourSelection(Pick pick, QWidget *parent = nullptr);

    QString HexadecimalColour() const; ///< "#RRGGBB"
    ColourValue GetColour() const { return m_colour; }
    void setColour(ColourValue colour); ///< not a choice of the user: raises no change
    /// Takes the colour, and from now on shows it as no colour: an empty text, which brings it back when it is typed.
    void setUnsetColour(ColourValue colour);

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
    QString shownText() const;
    void drawSwatch();

    Pick m_pick;
    QLineEdit *m_text;
    QPushButton *m_change;
    ColourValue m_colour = 0;
    std::optional<ColourValue> m_unset;
};
