#pragma once

#include "platform/file_bytes.h"

/// Who may do what with a file.
namespace platform {

/// Fails unless the user may write the file. The owner's write bit has to be set even for the superuser.
FileResult<> checkWritable(const QByteArray& name, const OpenFile& file);

/// Gives a new file all that a replaced one had: mode, owner, group, access list and extended attributes, as far as the
/// system permits.
FileResult<> keepAttributes(const FileHandle& fresh, const OpenFile& old);

/// Gives a copy of a file its mode, owner, group and access list, as far as the system permits, and lets its owner
/// write it.
FileResult<> copyAccess(const FileHandle& fresh, const OpenFile& model);

}  // namespace platform
