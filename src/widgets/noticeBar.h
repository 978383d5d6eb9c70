#pragma once

#include <QList>
#include <QPointer>
#include <QScrollArea>

class NoticeLayout;
class QLabel;
class QPushButton;

/// A line that tells something and offers answers, above what it is about: `picNotice` with `lblNotice` and the buttons
/// `cmdNotice(0)`, `cmdNotice(1)` and so on. It takes no focus by itself and by no click; where it is too narrow for
/// one line, its text wraps and the buttons go below. It takes a third of its parent's height at the most, and scrolls
/// where that is too little for it: what it is about may be a text and its preview, which share the rest.
class NoticeBar final : public QScrollArea
{
    Q_OBJECT
public:
    struct Button {
        QString caption; ///< plain text: a "&" in it is a "&"
        bool enabled = true;
    };

    explicit NoticeBar(QWidget *parent = nullptr);

    /// Shows the text with these buttons in their order. What is on show already is not announced again.
    void tell(const QString &text, const QList<Button> &buttons);
    void clear(); ///< takes the line away
    /// Moves the focus to the first button that can be pressed, for the keyboard; false if there is none on show.
    bool takeFocus();

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void pressed(int button); ///< counted from 0
    void left();              ///< Escape was pressed in it

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QPushButton *makeButton(int index);
    void showButtons(const QList<Button> &buttons);
    void announce();
    void followTheme();
    void followParent();
    void showScrollBar();

    NoticeLayout *m_layout;
    QLabel *m_text;
    QList<QPushButton *> m_buttons; ///< those that are not needed are hidden
    QPointer<QWidget> m_watched;    ///< the parent whose height is looked at
    bool m_colouring = false;       ///< the theme's change is our own
};
