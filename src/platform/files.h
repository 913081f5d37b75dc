#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

/// Whole files, by the program's paths (see paths.h).
namespace platform {

/// All bytes of the file. Throws Failure with the platform's description.
QByteArray ReadFile(const QString& path);

/// Puts `bytes` in place of the file, or makes it. Atomic: a temporary file beside the target is flushed and renamed
/// over it, so that the old file or the new one stands there whole at any instant. A symbolic link stays one, the mode
/// of an old file is kept. Fails on a file whose owner may not write it, for the superuser too, and in a folder that
/// isn't there. Throws Failure with the platform's description.
void WriteFile(const QString& path, QByteArrayView bytes);

/// Whether a file (no folder) stands at the path.
bool FileExists(const QString& path);

/// Whether the folder holds at least one file. The path must end in a separator.
bool FolderHoldsFiles(const QString& folder);

/// Names of the files in `folder` that end in `ending` whatever the case (".ini"), in the order of NameLess, equal ones
/// by their bytes. Empty for a folder that isn't there.
QStringList ListFiles(const QString& folder, const QString& ending);

}  // namespace platform
