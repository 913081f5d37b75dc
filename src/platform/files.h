#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringList>

#include "platform/at_link.h"

/// Whole files, by the program's paths (see paths.h). Only regular files are files: a folder, a pipe or a device is
/// none, and nothing waits for it.
namespace platform {

/// All bytes of the file. Throws Failure with the platform's description.
QByteArray readFile(const QString& path);

/// The same, none when nothing stands at the path; with Replace also when it is a link. Any other failure is thrown:
/// who goes on without the file knows that there is none.
std::optional<QByteArray> readIfThere(const QString& path, AtLink atLink = AtLink::Follow);

/// The file, open for who doesn't read it whole. Throws Failure.
std::unique_ptr<QFile> openFile(const QString& path);

/// Puts `bytes` in place of the file, or makes it. Atomic: a temporary file beside the target is flushed and renamed
/// over it, so that the old file or the new one stands there whole at any instant. The mode of an old file is kept, and
/// its owner and group as far as the system lets. Fails on a file that the user may not write, on one whose owner may
/// not for the superuser too, and in a folder that isn't there. Throws Failure with the platform's description.
void writeFile(const QString& path, QByteArrayView bytes, AtLink atLink = AtLink::Follow);

/// Whether a file stands at the path. Throws Failure when that can't be seen.
bool fileExists(const QString& path);

/// When the file was written last, in nanoseconds; 0 when nothing stands there. Throws Failure.
qint64 lastWritten(const QString& path);

/// Whether the folder holds at least one file that isn't hidden. The path must end in a separator. False for a folder
/// that can't be listed.
bool folderHoldsFiles(const QString& folder);

/// Names of the files in `folder` that end in `ending` whatever the case (".ini"), in the order of nameLess, equal ones
/// by their bytes; hidden ones aren't listed. Empty for a folder that isn't there; throws Failure for one that can't be
/// listed.
QStringList listFiles(const QString& folder, const QString& ending);

}  // namespace platform
