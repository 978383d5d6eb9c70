#pragma once

#include <QTabWidget>

class HelpFolder;
class HelpHitList;
class QLabel;
class QLineEdit;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;
struct HelpEntry;

/// The ways to a page of the help: the table of contents, the index and the search, each on a tab of its own.
class HelpNavigator final : public QTabWidget
{
    Q_OBJECT
public:
    enum Tab { Contents, Index, Search };

    /// The folder outlives the navigator.
    explicit HelpNavigator(HelpFolder &folder, QWidget *parent = nullptr);

    /// Brings a tab to the front, and the focus to what is used first on it.
    void openTab(Tab tab);
    /// Marks the page in the table of contents; nothing is marked for one that is not in it.
    void markPage(const QString &page);
    /// Shows what a search finds, on its tab.
    void search(const QString &query);
    /// Opens the page that is selected among those found; nothing if none was found.
    void chooseHit();

Q_SIGNALS:
    void pageChosen(const QString &page);

private:
    QWidget *contentsTab();
    QWidget *indexTab();
    QWidget *searchTab();
    void fillContents(QTreeWidgetItem *parent, const QList<HelpEntry> &entries);
    void fillIndex();
    void filterIndex(const QString &text);
    void chooseItem(const QTreeWidgetItem *item);
    void chooseIndexRow();
    QWidget *entrance(int tab) const;

    HelpFolder &m_folder;
    QTreeWidget *m_contents = nullptr;
    QLineEdit *m_filter = nullptr;
    QListWidget *m_index = nullptr;
    QLabel *m_found = nullptr;
    HelpHitList *m_hits = nullptr;
};
