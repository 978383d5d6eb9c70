#pragma once

#include "services/fileSystem.h"

#include <QHash>

/// Files that are nowhere but in the memory: a million tries a minute would wear out a disk.
class MemoryFiles final : public FileSystem
{
public:
    QHash<QString, QByteArray> files;

    FileContents readAll(const QString &path) override
    {
        return files.contains(path) ? FileContents{files.value(path), {}} : FileContents{{}, notFound()};
    }
    std::optional<FileError> checkReadable(const QString &path) override { return readAll(path).error; }
    std::optional<FileError> writeWhole(const QString &path, const QByteArray &bytes) override
    {
        files.insert(path, bytes);
        return std::nullopt;
    }
    bool exists(const QString &path) override { return files.contains(path); }
    bool isFolder(const QString &) override { return false; }
    std::optional<qint64> size(const QString &path) override
    {
        return files.contains(path) ? std::optional<qint64>(files.value(path).size()) : std::nullopt;
    }
    std::optional<FileStamp> stamp(const QString &) override { return std::nullopt; }
    std::optional<FileDetails> details(const QString &) override { return std::nullopt; }
    FolderListing list(const QString &) override { return {}; }
    std::optional<FileError> makeFolder(const QString &) override { return std::nullopt; }
    std::optional<FileError> removeFile(const QString &path) override
    {
        return files.remove(path) ? std::nullopt : std::optional(notFound());
    }
    std::optional<QString> setAside(const QString &) override { return std::nullopt; }
    std::optional<FileError> copyFile(const QString &from, const QString &to) override
    {
        return files.contains(from) ? writeWhole(to, files.value(from)) : notFound();
    }

private:
    static FileError notFound() { return {.code = FileNotFoundError, .systemError = 0, .description = {}}; }
};
