#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QTextEdit;

/// The bar that finds text on the page above it.
class HelpFindBar final : public QWidget
{
    Q_OBJECT
public:
    /// The page outlives the bar.
    explicit HelpFindBar(QTextEdit &page, QWidget *parent = nullptr);

    /// Shows the bar with the text that is selected on the page, ready to be typed over.
    void open();
    /// Goes to the next place from the page's caret, or the one before it, and over the page's end to the other one.
    void findNext() { find(false); }
    void findPrevious() { find(true); }

private:
    void find(bool backward);
    void findTyped();
    bool step(bool backward);
    void tell(bool found);

    QTextEdit &m_page;
    QLineEdit *m_sought;
    QLabel *m_answer;
};
