#include "file_readings.h"

#include <array>
#include <benchmark/benchmark.h>
#include <cstring>
#include <map>
#include <sys/inotify.h>
#include <unistd.h>

#include "platform/files.h"
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

void readAll(const std::vector<QString>& files) {
  for (const QString& file : files) benchmark::DoNotOptimize(platform::readFile(file));
}

}  // namespace bench
