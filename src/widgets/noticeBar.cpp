#include "widgets/noticeBar.h"

#include "widgets/contrast.h"
#include "widgets/noticeLayout.h"

#include <QAccessible>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace
{
constexpr int StripeWidth = 4;
constexpr int Padding = 4;
constexpr int LargestPart = 3; ///< it takes one of so many parts of its parent's height at the most
constexpr qreal Tint = 0.16;   ///< how much of the mark's colour the line's ground has

/// A button whose caption is plain text: a "&" in it is a "&" and no key's mark.
class PlainButton final : public QPushButton
{
public:
    using QPushButton::QPushButton;

    void setCaption(const QString &caption)
    {
        setText(caption);
        setShortcut({}); // which setText takes from a "&"
    }

    QSize sizeHint() const override
    {
        const QSize hint = QPushButton::sizeHint();
        const int marks = static_cast<int>(text().count(u'&')); // not counted there
        return {hint.width() + marks * fontMetrics().horizontalAdvance(u'&'), hint.height()};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text.replace(u'&', QStringLiteral("&&"));
        painter.drawControl(QStyle::CE_PushButton, option);
    }
};
} // namespace

NoticeBar::NoticeBar(QWidget *parent) : QScrollArea(parent), m_layout(new NoticeLayout), m_text(new QLabel)
{
    setObjectName(QStringLiteral("picNotice"));
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred); // it follows the width that there is
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    auto *inside = new QWidget;
    inside->setLayout(m_layout);
    m_layout->setContentsMargins(StripeWidth + 2 * Padding, Padding, 2 * Padding, Padding);
    m_text->setObjectName(QStringLiteral("lblNotice"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_layout->addWidget(m_text);
    setWidget(inside);
    inside->setAutoFillBackground(false); // the ground and its stripe stay where they are when it scrolls
    viewport()->setBackgroundRole(QPalette::Window);
    followTheme();
    followParent();
    hide();
}

void NoticeBar::tell(const QString &text, const QList<Button> &buttons)
{
    const bool isNew = isHidden() || m_text->text() != text;
    m_text->setText(text);
    setAccessibleName(text);
    showButtons(buttons);
    m_layout->invalidate();
    updateGeometry();
    show();
    if (isNew)
        announce();
}

void NoticeBar::clear()
{
    hide();
    m_text->clear();
    setAccessibleName({});
    showButtons({});
}

bool NoticeBar::takeFocus()
{
    const auto first = std::find_if(m_buttons.begin(), m_buttons.end(), [](const QPushButton *button) {
        return button->isVisible() && button->isEnabled();
    });
    if (first == m_buttons.end())
        return false;
    (*first)->setFocus(Qt::TabFocusReason);
    ensureWidgetVisible(*first, 0, Padding);
    return true;
}

int NoticeBar::heightForWidth(int width) const
{
    return m_layout->totalHeightForWidth(width);
}

QSize NoticeBar::sizeHint() const
{
    return m_layout->totalSizeHint();
}

QSize NoticeBar::minimumSizeHint() const
{
    return m_layout->totalMinimumSize();
}

void NoticeBar::showButtons(const QList<Button> &buttons)
{
    while (m_buttons.size() < buttons.size())
        m_buttons.append(makeButton(static_cast<int>(m_buttons.size())));
    for (qsizetype i = 0; i < m_buttons.size(); ++i) {
        auto *button = static_cast<PlainButton *>(m_buttons[i]);
        button->setVisible(i < buttons.size());
        button->setCaption(i < buttons.size() ? buttons[i].caption : QString());
        button->setEnabled(i < buttons.size() && buttons[i].enabled);
    }
}

QPushButton *NoticeBar::makeButton(int index)
{
    auto *button = new PlainButton(widget());
    button->setObjectName(QStringLiteral("cmdNotice(%1)").arg(index));
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard where it is
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, index] { Q_EMIT pressed(index); });
    m_layout->addWidget(button);
    return button;
}

void NoticeBar::announce()
{
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

bool NoticeBar::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange)
        followParent();
    return QScrollArea::event(event);
}

void NoticeBar::followParent()
{
    if (m_watched)
        m_watched->removeEventFilter(this);
    m_watched = parentWidget();
    if (!m_watched)
        return;
    m_watched->installEventFilter(this);
    setMaximumHeight(m_watched->height() / LargestPart);
}

bool NoticeBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_watched && event->type() == QEvent::Resize)
        setMaximumHeight(m_watched->height() / LargestPart);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry(); // a larger letter, a longer word
        showScrollBar();
    }
    return QScrollArea::eventFilter(watched, event);
}

void NoticeBar::resizeEvent(QResizeEvent *event)
{
    showScrollBar();
    QScrollArea::resizeEvent(event);
}

/// Where it is needed without one: left to itself the area keeps the one that it has, for beside it the text is longer.
void NoticeBar::showScrollBar()
{
    setVerticalScrollBarPolicy(heightForWidth(width()) > height() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void NoticeBar::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ThemeChange)
        followTheme();
}

/// The ground has a touch of the mark's colour, on a light theme and on a dark one.
void NoticeBar::followTheme()
{
    if (m_colouring)
        return;
    m_colouring = true;
    const QWidget *around = parentWidget();
    const QPalette theme = around ? around->palette() : palette();
    QPalette own = theme;
    own.setColor(QPalette::Window, mixed(theme.color(QPalette::Window), theme.color(QPalette::Highlight), Tint));
    setPalette(own);
    m_colouring = false;
}

void NoticeBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT left();
    else
        QScrollArea::keyPressEvent(event);
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const QRect ground = viewport()->rect();
    painter.fillRect(0, 0, StripeWidth, ground.height(), palette().color(QPalette::Highlight));
    painter.fillRect(0, ground.height() - 1, ground.width(), 1, palette().color(QPalette::Mid));
}
