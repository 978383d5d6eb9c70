#include "widgets/accelerators.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>
#include <functional>
#include <vector>

namespace
{
/// One caption of a window, wherever it stands.
struct Bearer {
    QWidget *widget = nullptr;
    int rank = 0; ///< those of a lower one keep their letter
    QString caption;
    std::function<void(const QString &)> setCaption;
};

/// Where the character behind the mark stands; -1 for none. Two marks are one sign.
qsizetype markedPlace(const QString &caption)
{
    for (qsizetype at = 0; at + 1 < caption.size(); ++at) {
        if (caption[at] != u'&')
            continue;
        if (caption[at + 1] != u'&')
            return at + 1;
        ++at;
    }
    return -1;
}

/// The letters of a caption without its mark, those that start a word first.
QList<qsizetype> candidates(const QString &caption)
{
    QList<qsizetype> starts;
    QList<qsizetype> others;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (!caption[at].isLetterOrNumber())
            continue;
        const bool first = at == 0 || !caption[at - 1].isLetterOrNumber();
        (first ? starts : others).append(at);
    }
    return starts + others;
}

void collectTabs(QTabBar &tabs, std::vector<Bearer> &bearers)
{
    for (int tab = 0; tab < tabs.count(); ++tab)
        bearers.push_back(
            {&tabs, 0, tabs.tabText(tab), [&tabs, tab](const QString &text) { tabs.setTabText(tab, text); }});
}

void collect(QWidget &widget, std::vector<Bearer> &bearers)
{
    const bool hidden = widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
    const int behind = hidden ? 10 : 0; // what is never on show is not to take a letter from what is
    if (auto *tabs = qobject_cast<QTabBar *>(&widget)) {
        collectTabs(*tabs, bearers);
    } else if (auto *button = qobject_cast<QAbstractButton *>(&widget)) {
        const int rank = qobject_cast<QPushButton *>(button) ? 1 : 2;
        bearers.push_back({button, rank + behind, button->text(), [button](const QString &t) { button->setText(t); }});
    } else if (auto *group = qobject_cast<QGroupBox *>(&widget)) {
        bearers.push_back({group, 3 + behind, group->title(), [group](const QString &t) { group->setTitle(t); }});
    } else if (auto *label = qobject_cast<QLabel *>(&widget); label && label->buddy()) {
        bearers.push_back({label, 3 + behind, label->text(), [label](const QString &t) { label->setText(t); }});
    }
}

/// Whether both can be on show at a time: not on two pages of one stack.
bool meet(const QWidget &a, const QWidget &b)
{
    const QWidget *page = &a;
    for (const QWidget *above = a.parentWidget(); above; page = above, above = above->parentWidget())
        if (qobject_cast<const QStackedWidget *>(above) && above->isAncestorOf(&b) && page != &b &&
            !page->isAncestorOf(&b))
            return false;
    return true;
}

QStringList lettersOf(const std::vector<Bearer> &bearers, std::size_t count, const Bearer &meeting)
{
    QStringList letters;
    for (std::size_t i = 0; i < count; ++i)
        if (&bearers[i] != &meeting && meet(*bearers[i].widget, *meeting.widget))
            letters.append(acceleratorOf(bearers[i].caption));
    return letters;
}
} // namespace

QString acceleratorOf(const QString &caption)
{
    const qsizetype place = markedPlace(caption);
    return place < 0 ? QString() : QString(caption[place].toUpper());
}

QString withAnotherAccelerator(const QString &caption, const QStringList &taken)
{
    QString bare = caption;
    if (const qsizetype place = markedPlace(caption); place > 0)
        bare.remove(place - 1, 1);
    for (const qsizetype place : candidates(bare))
        if (!taken.contains(QString(bare[place].toUpper())))
            return bare.insert(place, u'&');
    return bare;
}

void settleAccelerators(QWidget &window)
{
    std::vector<Bearer> bearers;
    for (QWidget *widget : window.findChildren<QWidget *>())
        collect(*widget, bearers);
    std::erase_if(bearers, [](const Bearer &bearer) { return acceleratorOf(bearer.caption).isEmpty(); });
    std::stable_sort(bearers.begin(), bearers.end(), [](const Bearer &a, const Bearer &b) { return a.rank < b.rank; });
    for (std::size_t i = 0; i < bearers.size(); ++i) {
        Bearer &bearer = bearers[i];
        if (!lettersOf(bearers, i, bearer).contains(acceleratorOf(bearer.caption)))
            continue;
        // The caption of the form's design stays known under its name.
        bearer.widget->setProperty(DesignedCaption, bearer.caption);
        bearer.caption = withAnotherAccelerator(bearer.caption, lettersOf(bearers, bearers.size(), bearer));
        bearer.setCaption(bearer.caption);
    }
}
