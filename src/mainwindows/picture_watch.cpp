#include "mainwindows/picture_watch.h"

#include <algorithm>
#include <chrono>

#include <QApplication>
#include <QFileInfo>
#include <QSet>

#include "controls/work_queue.h"
#include "mainwindows/main_window.h"
#include "mainwindows/preview_hand.h"
#include "platform/paths.h"
#include "themefiles/module_state.h"

namespace mainwindows {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds RestTime = 100ms;
constexpr std::chrono::milliseconds LongestUnrest = 2s;

/// Adds what a look at a file goes through, as far as it is there: the file, the folders above it, and the same of what
/// links among them lead to. Whatever moves, goes or comes back on the way shows in one of these.
void addPlaces(QSet<QString>& places, const QString& file) {
  QFileInfo place(file);
  while (true) {
    if (places.contains(place.filePath())) return;
    const bool isLink = place.isSymLink();
    if (place.exists() || isLink) places.insert(place.filePath());
    if (isLink) addPlaces(places, place.symLinkTarget());
    if (place.path() == place.filePath()) return;
    place.setFile(place.path());
  }
}

/// The folder of the skin, whose working copy tells which pictures there are.
QString skinFolder(const Form1& form) {
  return QFileInfo(platform::nativePath(form.services.state.paths.SkinFile)).path();
}

bool skinIsThere(const Form1& form) {
  return QFileInfo::exists(platform::nativePath(form.services.state.paths.SkinFile));
}

/// Of the account, only the pictures that a drawing found differently from now.
bool isChanged(const std::pair<const QString, std::optional<platform::FileIdentity>>& picture) {
  return platform::identityIfSeen(picture.first) != picture.second;
}

}  // namespace

PictureWatch::PictureWatch(Form1& form, const PreviewHand& hand) : QObject(&form), form_(form), hand_(hand) {
  rest_.setObjectName(QStringLiteral("PicturesAtRest"));
  rest_.setSingleShot(true);
  rest_.setInterval(RestTime);
  rest_.callOnTimeout([this] { look(); });
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &PictureWatch::rest);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &PictureWatch::rest);
}

void PictureWatch::drawn() {
  if (!form_.session().isOpen()) return;
  pictures_ = form_.account().pictures;
  withoutSkin_ = !skinIsThere(form_);
  watchAnew();
  // What changed before it was watched has given no signal.
  if (differs()) rest();
}

/// A file that was renamed over another one isn't watched by itself, nor is a folder that has appeared: all is watched
/// anew before the look, so that nothing gets lost between the two.
void PictureWatch::look() {
  if (mustWait()) return rest_.start(RestTime);
  watchAnew();
  if (differs()) form_.queue().draw();
}

bool PictureWatch::differs() const {
  if (withoutSkin_ && skinIsThere(form_)) return true;
  return std::any_of(pictures_.begin(), pictures_.end(), isChanged);
}

void PictureWatch::letGo() {
  rest_.stop();
  pictures_.clear();
  withoutSkin_ = false;
  stopWatching();
}

void PictureWatch::rest() {
  if (!rest_.isActive()) latest_.setRemainingTime(LongestUnrest);
  rest_.start(std::min(RestTime, std::chrono::milliseconds(latest_.remainingTime())));
}

void PictureWatch::watchAnew() {
  stopWatching();
  if (!form_.session().isOpen()) return;
  QSet<QString> places;
  addPlaces(places, skinFolder(form_));
  for (const auto& [picture, found] : pictures_) addPlaces(places, platform::nativePath(picture));
  const QStringList left = watch(places.values());
  const auto exists = [](const QString& place) { return QFileInfo::exists(place); };
  if (toldOfLack_ || std::none_of(left.begin(), left.end(), exists)) return;
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
