#include "themefiles/working_copies.h"

#include <array>
#include <vector>

#include <QCryptographicHash>

#include "platform/failure.h"
#include "platform/files.h"

namespace themefiles {
namespace {

/// The files of a theme in the order in which they are copied.
constexpr std::array<QString ThemePaths::*, 3> CopiedFiles{&ThemePaths::ThemeFile, &ThemePaths::SkinFile,
                                                           &ThemePaths::LanguageFile};

QByteArray digest(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

void keepBeside(const QString& path, const QByteArray& bytes, QStringView ending, platform::StatusLine& status) {
  const QString kept = path + ending.toString();
  platform::WriteFile(kept, bytes);
  status.ShowStatus(QStringLiteral("%1 held other changes and is kept as %2").arg(path, kept));
}

/// Makes the working copy of a file; gives the digest of the file.
QByteArray makeCopy(const QString& file, platform::StatusLine& status) {
  const QString copy = file + WorkingEnding.toString();
  const QByteArray bytes = platform::ReadFile(file);
  if (platform::FileExists(copy)) {
    const QByteArray older = platform::ReadFile(copy);
    if (older != bytes) keepBeside(copy, older, u".old", status);
  }
  platform::WriteFile(copy, bytes);
  return digest(bytes);
}

/// Copies a working copy over its file; gives the digest of what stands in both now.
QByteArray saveCopy(const QString& copy, const QByteArray& knownDigest, platform::StatusLine& status) {
  const QString file = copy.chopped(WorkingEnding.size());
  const QByteArray bytes = platform::ReadFile(copy);
  if (platform::FileExists(file)) {
    const QByteArray present = platform::ReadFile(file);
    if (digest(present) != knownDigest && present != bytes) keepBeside(file, present, u".bak", status);
  }
  platform::WriteFile(file, bytes);
  return digest(bytes);
}

/// A file and what stood in it.
struct KeptFile {
  QString path;
  QByteArray bytes;
};

/// The working copies of the theme that is open, as they are now; none without one.
std::vector<KeptFile> openCopies(const ModuleState& state) {
  std::vector<KeptFile> copies;
  if (!state.ThemeOpened) return copies;
  for (const auto file : CopiedFiles) {
    const QString& path = state.Paths.*file;
    if (platform::FileExists(path)) copies.push_back({path, platform::ReadFile(path)});
  }
  return copies;
}

void putBack(const std::vector<KeptFile>& files) {
  for (const KeptFile& file : files) {
    if (!platform::FileExists(file.path) || platform::ReadFile(file.path) != file.bytes) {
      platform::WriteFile(file.path, file.bytes);
    }
  }
}

}  // namespace

void MakeWorkingCopies(ModuleState& state, const ThemePaths& chosen, platform::StatusLine& status) {
  std::array<QByteArray, CopiedFiles.size()> digests;
  ThemePaths opened = chosen;
  const std::vector<KeptFile> before = openCopies(state);
  try {
    for (size_t i = 0; i < CopiedFiles.size(); ++i) {
      digests.at(i) = makeCopy(chosen.*CopiedFiles.at(i), status);
      opened.*CopiedFiles.at(i) += WorkingEnding.toString();
    }
  } catch (const platform::Failure&) {
    putBack(before);
    throw;
  }
  state.Paths = opened;
  state.FileDigests = digests;
  state.ThemeOpened = true;
}

void SaveWorkingCopies(ModuleState& state, platform::StatusLine& status) {
  for (size_t i = 0; i < CopiedFiles.size(); ++i) {
    state.FileDigests.at(i) = saveCopy(state.Paths.*CopiedFiles.at(i), state.FileDigests.at(i), status);
  }
  state.Changed = false;
}

void ForgetTheme(ModuleState& state) {
  state.Changed = false;
  state.Paths = {};
  state.ThemeOpened = false;
  state.FileDigests = {};
  state.ThemeColors = {};
  state.ScreenTable = {};
}

}  // namespace themefiles
