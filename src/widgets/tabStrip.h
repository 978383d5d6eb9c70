#pragma once

#include <QTabBar>
#include <optional>

/// A strip of tabs, each with a key of its own. Tabs are numbered from 0 in the order in which they stand.
class TabStrip final : public QTabBar
{
    Q_OBJECT
public:
    explicit TabStrip(QWidget *parent = nullptr);

    /// Adds a tab at a place, from 0, or at the end (-1 or a place behind it), without selecting it unless it is the
    /// only one. False, and no tab, if the key is there.
    bool addKeyedTab(const QString &key, const QString &caption, const QIcon &image = {}, int place = -1);
    bool removeKeyedTab(const QString &key); ///< false if there is none
    bool selectKey(const QString &key);      ///< false if there is none; not a click
    QString selectedKey() const;             ///< empty without a tab
    QString keyAt(int tab) const;
    std::optional<int> find(const QString &key) const;

Q_SIGNALS:
    /// The user chose the selected tab, by mouse (the one that was selected already, too), keyboard or wheel.
    void tabClicked(int tab);

protected:
    QSize minimumTabSizeHint(int tab) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    template <class Handling>
    void watched(const Handling &handling);

    QString m_pressed; ///< the key of the tab that the mouse is held on; empty: none
};
