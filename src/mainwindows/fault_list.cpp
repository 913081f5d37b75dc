#include "mainwindows/fault_list.h"

#include "editing/differences.h"
#include "editing/goals.h"
#include "editing/reports.h"
#include "editing/session.h"
#include "mainwindows/theme_review.h"
#include "platform/failure.h"
#include "toolwindow/list_window.h"
#include "toolwindow/row_words.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

constexpr QStringView FaultsName = u"Faults";
constexpr QStringView FaultsTitle = u"What is wrong: ";

/// The findings of the theme check.
class FaultSource : public toolwindow::ListSource {
 public:
  FaultSource(const editing::Session& session, ThemeReview& review) : session_(session), review_(review) {
    connect(&review, &ThemeReview::renewed, this, &ListSource::renewed);
  }

  toolwindow::ListNames names() const override {
    return {FaultsName.toString(), QStringLiteral("Narrow the list"),
            QStringLiteral("Words that the rows are to have, such as error, a screen or an object"),
            QStringLiteral("What is wrong in the theme")};
  }

  QStringList rows(const QString& typed) override {
    const toolwindow::RowWords words(typed);
    shown_.clear();
    QStringList told;
    for (int item = 0; item < static_cast<int>(review_.items().size()); ++item) {
      const ThemeReview::Item& each = review_.items().at(static_cast<size_t>(item));
      if (!words.areIn(each.searchable)) continue;
      shown_.push_back(item);
      told += each.told;
    }
    return told;
  }

  QString title() const override {
    const QString title = FaultsTitle.toString();
    if (!review_.isKnown()) return title + QStringLiteral("the theme is being checked");
    const qsizetype all = std::ssize(review_.items());
    const QString number = QString::number(shown_.size());
    return title + (std::ssize(shown_) < all ? QStringLiteral("%1 of %2").arg(number).arg(all) : number);
  }

  std::optional<themefiles::Hit> goalOf(int row) override {
    const int number = shown_.at(static_cast<size_t>(row));
    const ThemeReview::Item& item = review_.items().at(static_cast<size_t>(number));
    std::optional<themefiles::Hit> goal;
    platform::guarded(session_.status(), editing::FindStep.toString(), [&] {
      const editing::KeyPlace& place = item.place;
      const bool isOfObject = place.copy == &themefiles::ThemePaths::ThemeFile && !editing::isColor(place);
      if (place.section.isEmpty() || (place.key.isEmpty() && !isOfObject))
        throw platform::Failure(QStringLiteral("that is about no object"));
      goal = editing::goalOf(session_.state(), session_.screen(), item.place);
      review_.setPresent(number);
    });
    return goal;
  }

  void begin() override { review_.begin(); }
  bool keepsPlace() const override { return true; }

 private:
  const editing::Session& session_;
  ThemeReview& review_;
  std::vector<int> shown_;  ///< the items that have the words
};

}  // namespace

void showFaults(toolwindow::Form2& form, ThemeReview& review) {
  toolwindow::showListWindow(form, FaultsName.toString(),
                             [&] { return new FaultSource(form.services.session, review); });
}

}  // namespace mainwindows
