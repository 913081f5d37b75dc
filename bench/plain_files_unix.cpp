#include <array>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include "plain_files.h"
#include "platform/paths.h"

namespace bench {

std::vector<QString> readingsOf(const QStringList& files, const std::function<void()>& work) {
  const int watch = ::inotify_init1(IN_NONBLOCK);
  std::map<int, QString> watched;
  // Equal events in a row would count once: the closings keep the openings apart.
  for (const QString& file : files) {
    watched[::inotify_add_watch(watch, platform::nativePath(file).toUtf8().constData(), IN_OPEN | IN_CLOSE)] = file;
  }
  work();
  std::vector<QString> opened;
  alignas(inotify_event) std::array<char, 1 << 16> events{};
  for (ssize_t size = 0; (size = ::read(watch, events.data(), events.size())) > 0;) {
    for (ssize_t at = 0; at < size;) {
      inotify_event event{};
      std::memcpy(&event, events.data() + at, sizeof event);
      if ((event.mask & IN_OPEN) != 0) opened.push_back(watched[event.wd]);
      at += static_cast<ssize_t>(sizeof event + event.len);
    }
  }
  ::close(watch);
  return opened;
}

QByteArray readPlainly(const QString& native) {
  const int file = ::open(QFile::encodeName(native).constData(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  ::fstat(file, &status);
  QByteArray bytes(status.st_size, Qt::Uninitialized);
  if (::read(file, bytes.data(), static_cast<std::size_t>(bytes.size())) != bytes.size()) qFatal("can't read the file");
  ::close(file);
  return bytes;
}

void writePlainly(const QString& native, const QByteArray& bytes) {
  const QByteArray path = QFile::encodeName(native);
  const QByteArray fresh = path + ".new";
  const int file = ::open(fresh.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  const bool written = ::write(file, bytes.constData(), static_cast<std::size_t>(bytes.size())) == bytes.size();
  if (!written || ::fsync(file) != 0 || ::close(file) != 0 || ::rename(fresh.constData(), path.constData()) != 0) {
    qFatal("can't write the file");
  }
}

}  // namespace bench
