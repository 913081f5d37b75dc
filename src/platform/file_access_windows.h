#pragma once

#include <string>

#include "platform/file_bytes.h"

/// Who may do what with a file, and what else of a file stays when it is replaced.
namespace platform {

/// Fails if the user may not write the file, or if it has the attribute that protects it, for an administrator too.
FileResult<> checkWritable(const std::wstring& path, const OpenFile& file);

/// Gives the new file the attributes, the creation time, the owner and the access list of the old one, as far as the
/// system permits.
FileResult<> keepAttributes(const FileHandle& fresh, const OpenFile& old);

/// Gives the new file the access list of another one. Fails if that isn't permitted and the lists differ.
FileResult<> copyAccess(const FileHandle& fresh, const OpenFile& model);

/// Leaves the new file to its owner alone, as far as the system permits.
FileResult<> keepToOwner(const FileHandle& fresh);

}  // namespace platform
