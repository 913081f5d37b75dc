#include "toolwindow/changes.h"

#include <optional>

#include "controls/idle_steps.h"
#include "controls/work_queue.h"
#include "editing/commit.h"
#include "editing/differences.h"
#include "editing/goals.h"
#include "editing/reports.h"
#include "editing/session.h"
#include "toolwindow/idle_operation.h"
#include "toolwindow/list_window.h"
#include "toolwindow/row_words.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

constexpr QStringView ChangesName = u"Changes";
constexpr QStringView ChangesTitle = u"Differs from the saved state";

/// The differences, looked for when the window opens and after each edit.
class ChangesSource : public ListSource {
 public:
  explicit ChangesSource(Form2& form) : form_(form), session_(form.services.session) {
    connect(&session_, &editing::Session::differencesDue, this, [this] {
      if (isShown_) look();
    });
  }

  ListNames names() const override {
    return {ChangesName.toString(), QStringLiteral("Narrow the list"),
            QStringLiteral("Words that the rows are to have, such as a screen, an object or x="),
            QStringLiteral("What differs from the saved state")};
  }

  QStringList rows(const QString& typed) override {
    const RowWords words(typed);
    shown_.clear();
    QStringList told;
    for (const Row& row : rows_) {
      if (!words.areIn(row.words)) continue;
      shown_.push_back(&row);
      told += row.told;
    }
    return told;
  }

  QString title() const override {
    const qsizetype shown = std::ssize(shown_);
    const qsizetype all = std::ssize(rows_);
    const QString title = ChangesTitle.toString();
    if (!isLooked_) return title;
    const QString number = QString::number(shown);
    return title + QStringLiteral(": ") + (shown < all ? QStringLiteral("%1 of %2").arg(number).arg(all) : number);
  }

  std::optional<themefiles::Hit> goalOf(int row) override {
    std::optional<themefiles::Hit> goal;
    platform::guarded(session_.status(), editing::FindStep.toString(), [&] {
      goal = editing::goalOf(session_.state(), session_.screen(), shown_.at(static_cast<size_t>(row))->place);
    });
    return goal;
  }

  void begin() override {
    isShown_ = true;
    look();
  }
  void end() override {
    isShown_ = false;
    steps_.stop();
    pass_.reset();
  }
  bool keepsPlace() const override { return true; }

  QString actionOn(const std::vector<int>& rows) const override {
    const size_t count = placesOf(rows).size();
    return count == 0 ? QStringLiteral("Put back")
                      : QStringLiteral("Put back ") + editing::countOf(static_cast<int>(count));
  }
  bool canActOn(const std::vector<int>& rows) const override { return !placesOf(rows).empty(); }
  void actOn(const std::vector<int>& rows) override {
    whenIdle(
        form_, form_.services.queue, [] { return true; },
        [this, places = placesOf(rows)] {
          session_.settle();
          editing::putBack(session_, places);
        });
  }

 private:
  struct Row {
    editing::KeyPlace place;
    QString told;
    QString words;  ///< what a word is looked for in
    bool canBePutBack = false;
  };

  void look() {
    pass_.reset();
    steps_.begin();
  }

  /// The rows stay until all the new ones are there.
  bool step() {
    if (!pass_) {
      const auto read = [this] { pass_.emplace(session_.state()); };
      return platform::guarded(session_.status(), editing::FindStep.toString(), read);
    }
    if (pass_->step()) return true;
    rows_.clear();
    for (const editing::Difference& each : pass_->found()) {
      const QString told = each.told();
      rows_.push_back(
          {each.place, told, searchable(told, each.place.key, each.now.value_or(QString())), each.canBePutBack()});
    }
    pass_.reset();
    isLooked_ = true;
    Q_EMIT renewed();
    return false;
  }

  std::vector<editing::KeyPlace> placesOf(const std::vector<int>& rows) const {
    std::vector<editing::KeyPlace> places;
    for (const int row : rows) {
      const Row& shown = *shown_.at(static_cast<size_t>(row));
      if (shown.canBePutBack) places.push_back(shown.place);
    }
    return places;
  }

  Form2& form_;
  editing::Session& session_;
  std::vector<Row> rows_;
  std::vector<const Row*> shown_;  ///< those that have the words
  bool isShown_ = false;
  bool isLooked_ = false;
  std::optional<editing::Differences> pass_;  ///< that has begun
  controls::IdleSteps steps_{form_.services.queue, [this] { return step(); }};
};

}  // namespace

void showChanges(Form2& form) {
  showListWindow(form, ChangesName.toString(), [&form] { return new ChangesSource(form); });
}

}  // namespace toolwindow
