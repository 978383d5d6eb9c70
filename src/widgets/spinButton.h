#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QWidget>

class QToolButton;

/// Two arrows that count a number field, their buddy, up and down. The Up and Down keys do the same in the buddy.
class SpinButton final : public QWidget
{
    Q_OBJECT
public:
    SpinButton(QLineEdit *buddy, int minimum, int maximum, QWidget *parent = nullptr);

    int Min() const { return m_minimum; }
    int Max() const { return m_maximum; }
    /// The buddy's number, within the limits; the minimum if it holds none.
    int Value() const;
    /// Writes the number, cut to the limits, into the buddy.
    void setValue(int value);
    QWidget *upButton() const;
    QWidget *downButton() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QToolButton *arrow(Qt::ArrowType type, const QString &name, int step);
    void sizeArrows();
    void count(int step);

    QPointer<QLineEdit> m_buddy;
    int m_minimum;
    int m_maximum;
    QToolButton *m_up;
    QToolButton *m_down;
};
