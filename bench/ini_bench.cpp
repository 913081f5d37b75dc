#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "figures.h"
#include "support/panel.h"
#include "themefiles/ini_access.h"

namespace bench {
namespace {

constexpr int SectionCount = 800;
const QString Name = QStringLiteral("theme.ini");
const QString Section = QStringLiteral("ScreenObject400");
const QString Key = QStringLiteral("W");

/// A theme of about 70 KB.
QByteArray themeOfSections() {
  QByteArray text;
  for (int i = 0; i < SectionCount; ++i) {
    text += "[ScreenObject" + QByteArray::number(i) + "]\r\n";
    for (const char* line : {"Tex=Button", "X=100", "Y=200", "W=64", "H=24", "Color=P1Dark", "Type=Font Black"}) {
      text += QByteArray(line) + "\r\n";
    }
    if (i % 10 == 0) text += "; one more object of the screen\r\n";
    text += "\r\n";
  }
  return text;
}

/// The file read with one system call.
QByteArray readPlainly(const char* path) {
  const int file = ::open(path, O_RDONLY | O_CLOEXEC);
  struct stat status {};
  ::fstat(file, &status);
  QByteArray bytes(status.st_size, Qt::Uninitialized);
  if (::read(file, bytes.data(), static_cast<std::size_t>(bytes.size())) != bytes.size())
    qFatal("can't read the theme");
  ::close(file);
  return bytes;
}

/// The bytes written, flushed and renamed over the file.
void writePlainly(const QByteArray& path, const QByteArray& bytes) {
  const QByteArray fresh = path + ".new";
  const int file = ::open(fresh.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  const bool written = ::write(file, bytes.constData(), static_cast<std::size_t>(bytes.size())) == bytes.size();
  if (!written || ::fsync(file) != 0 || ::close(file) != 0 || ::rename(fresh.constData(), path.constData()) != 0) {
    qFatal("can't write the theme");
  }
}

std::size_t countBrackets(const QByteArray& bytes) {
  std::size_t count = 0;
  const char* const end = bytes.constEnd();
  for (const char* at = bytes.constBegin(); at != end; ++at, ++count) {
    at = static_cast<const char*>(std::memchr(at, '[', std::size_t(end - at)));
    if (!at) break;
  }
  return count;
}

}  // namespace

void registerIniAccess() {
  const auto folder = std::make_shared<support::Folder>();
  folder->put(Name, themeOfSections());
  const QByteArray native = QFile::encodeName(folder->native(Name));
  registerBenchmark(
      {"GetINI", 2, Held::AtMost},
      [folder](benchmark::State& state) {
        const QString path = folder->path(Name);
        for ([[maybe_unused]] auto turn : state) {
          QString value = themefiles::GetINI(Section, Key, QString(), path);
          benchmark::DoNotOptimize(value);
        }
      },
      [native](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) benchmark::DoNotOptimize(countBrackets(readPlainly(native)));
      });
  registerBenchmark(
      {"PutINI", 1.25, Held::AtMost},
      [folder](benchmark::State& state) {
        const QString path = folder->path(Name);
        int value = 10;
        for ([[maybe_unused]] auto turn : state) {
          value = value == 99 ? 10 : value + 1;  // an unchanged value wouldn't be written
          themefiles::PutINI(Section, Key, QString::number(value), path);
        }
      },
      [native](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) writePlainly(native, readPlainly(native));
      });
}

}  // namespace bench
