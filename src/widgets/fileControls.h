#pragma once

#include <QComboBox>
#include <QListWidget>
#include <optional>

class FileSystem;

/// The places from which the file system is entered: its root, the user's home and the mounted volumes.
class DriveList final : public QComboBox
{
    Q_OBJECT
public:
    explicit DriveList(FileSystem &files, QWidget *parent = nullptr);

    QString Drive() const; ///< the folder of the chosen place
    /// Chooses the place that holds the path; false, and nothing changed, if it is no absolute path.
    bool setDrive(const QString &path);
};

/// The folders from the root down to the open one, then the folders in it. A double click or Enter opens a folder.
class FolderList final : public QListWidget
{
    Q_OBJECT
public:
    explicit FolderList(FileSystem &files, QWidget *parent = nullptr);

    QString Path() const { return m_path; }
    /// Opens a folder; raises pathChanged if it is another one. False, and nothing changed, if it cannot be listed.
    bool setPath(const QString &path);
    QStringList subfolders() const { return m_subfolders; } ///< full paths, in order of name
    /// The row that leads nearest to a folder, from where the list stands; nothing if none leads on.
    std::optional<int> rowTowards(const QString &path) const;
    QSize sizeHint() const override;

Q_SIGNALS:
    void pathChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void openRow(const QListWidgetItem *item);
    void addFolder(const QString &path, int depth);
    void fill();

    FileSystem &m_files;
    QIcon m_folderIcon;
    QString m_path;
    QStringList m_subfolders;
};

/// The names of the files in a folder; mostly a hidden means to walk through them.
class FileList final : public QListWidget
{
    Q_OBJECT
public:
    explicit FileList(FileSystem &files, QWidget *parent = nullptr);

    QString Path() const { return m_path; }
    /// Lists another folder, or the same one anew; raises pathChanged. False, and nothing changed, if it cannot be
    /// listed.
    bool setPath(const QString &path);
    QStringList names() const;

Q_SIGNALS:
    void pathChanged();

private:
    FileSystem &m_files;
    QString m_path;
};
