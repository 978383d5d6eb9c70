#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

// What the writers of this folder share: an open file, and the system's calls with their interruptions taken care of.

/// An open file that is closed at the end, whatever happens before.
class Descriptor
{
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    Descriptor(Descriptor &&other) noexcept;
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor();

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

private:
    int m_number;
};

/// The errno of a call that has just given `result`; 0 where it did not fail.
int errorOf(int result);

/// Writes all of it where the file stands; 0 or an errno.
int writeBytes(int descriptor, QByteArrayView bytes);

/// Up to `length` bytes at an offset, fewer at the end of the file; nothing where the disk does not give them (errno).
std::optional<QByteArray> bytesAt(int descriptor, qint64 offset, qint64 length);

/// Copies `length` bytes from an offset of one file to where another one stands, or less where the first one ends
/// before; 0 or an errno.
int copyBytes(int from, qint64 offset, qint64 length, int to);

/// Has the disk take a folder's names. Only a bad disk is told: many file systems cannot flush a folder, or need not.
int flushFolder(const QByteArray &folder);

/// The folder part of a path for the system: "." for a bare name.
QByteArray systemFolderOf(const QByteArray &path);
