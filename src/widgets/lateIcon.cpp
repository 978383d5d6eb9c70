#include "widgets/lateIcon.h"

#include <QIconEngine>
#include <memory>
#include <utility>

namespace
{
class LateEngine final : public QIconEngine
{
public:
    explicit LateEngine(std::function<QIcon()> make)
        : m_made(std::make_shared<Made>(Made{.make = std::move(make), .icon = {}}))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    // Sizes are those of the screen here, whatever its scale.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1, mode, state);
    }
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal) override
    {
        return pixmap(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }
    QString iconName() override { return icon().name(); }
    bool isNull() override { return icon().isNull(); }
    QString key() const override { return QStringLiteral("late"); }
    QIconEngine *clone() const override { return new LateEngine(*this); }

private:
    struct Made {
        std::function<QIcon()> make;
        QIcon icon;
    };

    const QIcon &icon()
    {
        if (const auto make = std::exchange(m_made->make, nullptr))
            m_made->icon = make();
        return m_made->icon;
    }

    std::shared_ptr<Made> m_made; ///< of its copies, too
};
} // namespace

QIcon lateIcon(std::function<QIcon()> make)
{
    return QIcon(new LateEngine(std::move(make)));
}
