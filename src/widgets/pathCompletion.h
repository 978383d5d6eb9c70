#pragma once

#include "services/fileSystem.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QWidget;

/// Offers, below a path box that is typed into, the files and folders that go on from there.
///
/// The list takes neither the focus nor any key until Down leads into it: Enter and Escape stay the form's. In it, the
/// arrows move, Enter takes the row and Escape leads out again; a click takes a row too. What is typed is never changed
/// but by a row that is taken. A folder is first read when something is typed, and once for as long as the box has the
/// focus.
class PathCompletion final : public QObject
{
    Q_OBJECT
public:
    /// The folder that a relative path starts from, with its final separator; empty: relative paths are not completed.
    using StartFolder = std::function<QString()>;

    /// `control` is a text box or an editable combo; it owns this.
    PathCompletion(QWidget *control, FileSystem &files, StartFolder startFolder);

    /// The rows on offer; none if the list is not on show.
    QStringList offered() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void offer();
    QStringList rowsFor(const QString &typed);
    void show(const QStringList &rows);
    void hide();
    bool takesKey(int key);
    void take(const QListWidgetItem *row);
    QListWidget &list();

    QWidget *m_control;
    QLineEdit *m_edit;
    FileSystem &m_files;
    StartFolder m_startFolder;
    QString m_listedFolder;
    QList<FolderEntry> m_listed;
    QPointer<QListWidget> m_list;
};

/// The names of a folder that begin with what is typed, in any case of the letters, folders with a "/" behind. Hidden
/// ones take a typed dot; a name that is typed whole, and no other, is nothing to offer.
QStringList namesBeginning(const QList<FolderEntry> &entries, const QString &typed);
