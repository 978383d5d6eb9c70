#pragma once

#include <QByteArray>
#include <optional>

/// A disk that fills up: every byte that this process writes into files below one folder counts, by whatever means it
/// is written.
namespace drive
{
/// Lets so many more bytes be written below the folder, an absolute path without links; the write that does not fit is
/// cut short, and the next one fails as on a full disk.
void limitDisk(const QByteArray &folder, qint64 bytes);
/// Takes the limit away.
void liftDiskLimit();

struct DiskLimit {
    QByteArray folder;
    qint64 bytes = 0; ///< that still fit
};
std::optional<DiskLimit> diskLimit();
} // namespace drive
