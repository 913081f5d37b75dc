#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringList>

#include "platform/at_link.h"

/// Whole files by the program's paths (see paths.h). Only regular files count: a folder, a pipe or a device is no file
/// and never blocks.
namespace platform {

/// All bytes of the file. Throws Failure with the system's description.
QByteArray readFile(const QString& path);

/// All bytes of the file, or none if there is nothing at the path; with Replace also if there is a link. Throws any
/// other failure, so none means for certain that there is no file.
std::optional<QByteArray> readIfThere(const QString& path, AtLink atLink = AtLink::Follow);

/// The file, open for reading piece by piece. Throws Failure.
std::unique_ptr<QFile> openFile(const QString& path);

/// Replaces or creates the file. Atomic: a temporary file beside it is flushed and renamed over it, so at any instant
/// either the old file or the new one is there as a whole. The file keeps its mode, and owner and group where the
/// system permits. Fails if the user may not write the file, if the owner's write bit is off (even for the superuser),
/// or if the folder doesn't exist. Throws Failure with the system's description.
void writeFile(const QString& path, QByteArrayView bytes, AtLink atLink = AtLink::Follow);

/// Whether there is a file at the path. Throws Failure if that can't be found out.
bool fileExists(const QString& path);

/// When the file was last written, in nanoseconds since 1970; 0 if there is nothing. Throws Failure.
qint64 lastWritten(const QString& path);

/// Whether the folder holds a file that isn't hidden. The path must end in a separator. False if the folder can't be
/// listed.
bool folderHoldsFiles(const QString& folder);

/// The names of the files in `folder` that end in `ending` in any case (".ini"), without hidden ones, sorted by
/// nameLess and then by their bytes. Empty for a missing folder. Throws Failure if the folder can't be listed.
QStringList listFiles(const QString& folder, const QString& ending);

}  // namespace platform
