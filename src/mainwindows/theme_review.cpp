#include "mainwindows/theme_review.h"

#include <algorithm>
#include <utility>

#include <QPointer>

#include "controls/work_queue.h"
#include "editing/goals.h"
#include "editing/reports.h"
#include "editing/session.h"
#include "mainwindows/open_files.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "toolwindow/row_words.h"

namespace mainwindows {
namespace {

using themecheck::Finding;
using themefiles::ThemePaths;

themecheck::ThemeFiles filesOf(const ThemePaths& paths) {
  const OpenFiles open(paths);
  return {open.theme, paths.SkinDirectory, QStringLiteral("Skins/") + open.theme.name, open.skins, open.languages};
}

/// The working copy, or the kind of file, that a finding is about.
QString ThemePaths::*copyOf(const Finding& finding) {
  if (finding.place.file.startsWith(u"Skins/")) return &ThemePaths::SkinFile;
  return finding.place.file.startsWith(u"Languages/") ? &ThemePaths::LanguageFile : &ThemePaths::ThemeFile;
}

}  // namespace

ThemeReview::ThemeReview(editing::Session& session, controls::WorkQueue& queue)
    : session_(session),
      queue_(queue),
      steps_(
          queue, [this] { return step(); }, QuietTime) {
  connect(&session, &editing::Session::differencesDue, this, [this] {
    // That comes when an object is chosen, too.
    if (isWanted_ && session_.state().ownCopies != checked_) restart();
  });
  connect(&session, &editing::Session::ended, this, &ThemeReview::forget);
}

void ThemeReview::begin() {
  if (!session_.isOpen()) return;
  isWanted_ = true;
  restart();
}

void ThemeReview::stop() {
  isWanted_ = false;
  steps_.stop();
  dropCheck();
}

void ThemeReview::renew() {
  if (isWanted_) restart();
}

void ThemeReview::forget() {
  stop();
  items_.clear();
  isKnown_ = false;
  isGoing_ = false;
  present_ = -1;
}

void ThemeReview::restart() {
  checked_ = session_.state().ownCopies;
  dropCheck();
  steps_.begin();
}

void ThemeReview::dropCheck() {
  check_.reset();
  found_.reset();
  coming_.clear();
}

bool ThemeReview::step() {
  const themefiles::ModuleState& state = session_.state();
  if (found_) {
    check_.reset();  // by itself: it may have much
    if (coming_.size() == found_->size()) {
      publish();
      return false;
    }
    // All at once would take long to be let go.
    coming_.push_back(itemOf(std::exchange((*found_)[coming_.size()], {})));
  } else if (!check_) {
    check_ = std::make_unique<themecheck::ThemeCheck>(filesOf(state.paths), WholeThemePictures);
    places_.reset();
  } else if (!check_->isDone()) {
    check_->step();
  } else if (!places_) {
    // A working copy that is gone has its finding, and no places.
    theme_ = platform::IniText();
    platform::guardedSilently([&] { theme_ = platform::IniText(platform::readFile(state.paths.ThemeFile)); });
    places_.emplace(state, theme_);
  } else if (!places_->step()) {
    take();
  }
  return true;
}

/// What was found, in the order of the list.
void ThemeReview::take() {
  found_ = check_->findings();
  std::stable_sort(found_->begin(), found_->end(),
                   [](const Finding& a, const Finding& b) { return a.level < b.level; });
}

void ThemeReview::publish() {
  const QString present = present_ < 0 ? QString() : items_.at(static_cast<size_t>(present_)).told;
  items_ = std::exchange(coming_, {});
  found_.reset();
  places_.reset();
  isKnown_ = true;
  // What was mended is gone: the one that stands in its place comes next.
  const auto again = std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return item.told == present; });
  if (again == items_.end()) {
    present_ = std::min(present_, static_cast<int>(items_.size())) - (present_ < 0 ? 0 : 1);
  } else {
    present_ = static_cast<int>(again - items_.begin());
  }
  Q_EMIT renewed();
  // Not under a dialog.
  queue_.runOutside([open = QPointer<ThemeReview>(this)] {
    if (open && std::exchange(open->isGoing_, false)) open->goToNext();
  });
}

ThemeReview::Item ThemeReview::itemOf(const Finding& finding) const {
  const themecheck::Place& place = finding.place;
  Item item;
  item.place = {copyOf(finding), place.section, place.key.section(QStringLiteral(" x "), 0, 0)};
  const bool isOfTheme = item.place.copy == &ThemePaths::ThemeFile;
  const QString screen = isOfTheme ? places_->of(place.section).screen : QString();
  QStringList where{screen.isEmpty() ? place.file + u':' + QString::number(place.line) : screen, place.section,
                    place.key};
  where.removeAll(QString());
  const QString settings = finding.where.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(finding.where);
  item.told = themecheck::nameOf(finding.level) + QStringLiteral(": ") + where.join(QStringLiteral(", ")) +
              QStringLiteral(": ") + finding.text + themecheck::furtherSections(finding) + settings;
  item.searchable = toolwindow::searchable(item.told, place.key);
  item.leadsThere = !screen.isEmpty() || (!place.key.isEmpty() && (!isOfTheme || editing::isColor(item.place)));
  return item;
}

void ThemeReview::goToNext() {
  if (!session_.isOpen()) return;
  if (!isKnown_) {
    isGoing_ = true;
    session_.status().ShowStatus(QStringLiteral("The theme is being checked"));
    if (!isWanted_) begin();
    return;
  }
  if (!isWanted_) begin();  // what this one mends is to be seen
  std::optional<editing::Goals> goals;
  platform::guarded(session_.status(), editing::FindStep.toString(), [&] { goals.emplace(session_.state()); });
  if (!goals) return;
  const auto count = static_cast<int>(items_.size());
  for (int step = 1; step <= count; ++step) {
    const int next = (present_ + step) % count;
    const Item& item = items_.at(static_cast<size_t>(next));
    // What nothing uses, or what was mended meanwhile, leads nowhere.
    const auto goal = item.leadsThere ? goals->of(session_.screen(), item.place) : std::nullopt;
    if (!goal) continue;
    present_ = next;
    const QString told = QStringLiteral("%1 of %2: %3").arg(next + 1).arg(count).arg(item.told);
    // What choosing reports stands first: a value that wasn't taken over, a mark that can't be placed.
    const platform::ReportScope scope(session_.status());
    Q_EMIT goalChosen(*goal);
    return session_.status().note(told);
  }
  session_.status().ShowStatus(QStringLiteral("Nothing to go to: the check has found %1").arg(count));
}

}  // namespace mainwindows
