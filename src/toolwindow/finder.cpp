#include "toolwindow/finder.h"

#include <utility>

#include "editing/reports.h"
#include "editing/session.h"
#include "toolwindow/list_window.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

constexpr int MostHits = 300;
constexpr QStringView FinderName = u"Finder";

/// The hits of a search.
class FinderSource : public ListSource {
 public:
  explicit FinderSource(const editing::Session& session) : session_(session) {}

  ListNames names() const override {
    return {FinderName.toString(), QStringLiteral("Find"), QStringLiteral("Screen, object, key, value or words"),
            QStringLiteral("What was found")};
  }

  /// Reads the files each time.
  QStringList rows(const QString& typed) override {
    themefiles::Hits hits;
    asked_ = !typed.trimmed().isEmpty();
    if (asked_) {
      platform::guarded(session_.status(), editing::FindStep.toString(),
                        [&] { hits = themefiles::ThemeSearch(session_.state()).find(typed, MostHits); });
    }
    hits_ = std::move(hits);
    QStringList shown;
    for (const themefiles::Hit& hit : hits_.first) shown += hit.shown;
    return shown;
  }

  QString title() const override {
    const auto shown = static_cast<int>(hits_.first.size());
    if (!asked_) return QStringLiteral("Find");
    return shown < hits_.count ? QStringLiteral("Find: the first %1 of %2").arg(shown).arg(hits_.count)
                               : QStringLiteral("Find: %1").arg(hits_.count);
  }

  std::optional<themefiles::Hit> goalOf(int row) override { return hits_.first.at(row); }

 private:
  const editing::Session& session_;
  bool asked_ = false;
  themefiles::Hits hits_;
};

}  // namespace

void showFinder(Form2& form) {
  showListWindow(form, FinderName.toString(), [&form] { return new FinderSource(form.services.session); });
}

}  // namespace toolwindow
