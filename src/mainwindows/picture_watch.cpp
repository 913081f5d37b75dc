#include "mainwindows/picture_watch.h"

#include <algorithm>
#include <chrono>

#include <QApplication>
#include <QFileInfo>

#include "controls/work_queue.h"
#include "mainwindows/main_window.h"
#include "mainwindows/preview_hand.h"
#include "platform/paths.h"

namespace mainwindows {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds RestTime = 100ms;
constexpr std::chrono::milliseconds LongestUnrest = 2s;

/// The file, if it is there, and the nearest folder of it that is.
QStringList placesOf(const QString& picture) {
  QStringList places;
  QFileInfo place(platform::nativePath(picture));
  if (place.exists()) places += place.filePath();
  do place.setFile(place.path());
  while (!place.isDir() && place.path() != place.filePath());
  return places += place.filePath();
}

/// Of the account, only the pictures that a drawing found differently from now.
bool isChanged(const std::pair<const QString, std::optional<platform::FileIdentity>>& picture) {
  return platform::identityIfSeen(picture.first) != picture.second;
}

}  // namespace

PictureWatch::PictureWatch(Form1& form, const PreviewHand& hand) : QObject(&form), form_(form), hand_(hand) {
  rest_.setSingleShot(true);
  rest_.callOnTimeout([this] { look(); });
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &PictureWatch::signalled);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &PictureWatch::signalled);
}

void PictureWatch::drawn() {
  if (form_.toolWindow() == nullptr) return;
  pictures_ = form_.account().pictures;
  watchAnew();
  // What changed before it was watched has given no signal.
  if (std::any_of(pictures_.begin(), pictures_.end(), isChanged)) rest();
}

void PictureWatch::look() {
  if (mustWait()) return rest_.start(RestTime);
  if (std::any_of(pictures_.begin(), pictures_.end(), isChanged)) form_.queue().draw();
}

void PictureWatch::letGo() {
  rest_.stop();
  pictures_.clear();
  stopWatching();
}

/// A file that was renamed over another one isn't watched by itself, nor is a folder that has appeared.
void PictureWatch::signalled() {
  watchAnew();
  rest();
}

void PictureWatch::rest() {
  if (!rest_.isActive()) latest_.setRemainingTime(LongestUnrest);
  rest_.start(std::min(RestTime, std::chrono::milliseconds(latest_.remainingTime())));
}

void PictureWatch::watchAnew() {
  stopWatching();
  QStringList places;
  for (const auto& [picture, found] : pictures_) places += placesOf(picture);
  places.removeDuplicates();
  if (places.isEmpty()) return;
  const QStringList left = watch(places);
  const auto stands = [](const QString& place) { return QFileInfo::exists(place); };
  if (toldOfLack_ || std::none_of(left.begin(), left.end(), stands)) return;
  toldOfLack_ = true;
  form_.note(QStringLiteral("The system can't watch all pictures; F5 reads them again"));
}

void PictureWatch::stopWatching() {
  const QStringList watched = watcher_.files() + watcher_.directories();
  if (!watched.isEmpty()) watcher_.removePaths(watched);
}

bool PictureWatch::mustWait() const {
  return hand_.holds() || form_.queue().busy() || QApplication::activeModalWidget() != nullptr;
}

}  // namespace mainwindows
