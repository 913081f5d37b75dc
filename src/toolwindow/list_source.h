#pragma once

#include <optional>
#include <vector>

#include <QObject>
#include <QString>
#include <QStringList>

#include "themefiles/theme_search.h"

namespace toolwindow {

/// What a list window and its controls are called.
struct ListNames {
  QString window;  ///< the object name
  QString line;    ///< what a screen reader calls the line
  QString hint;    ///< stands in the empty line
  QString list;    ///< what a screen reader calls the list
};

/// A question about the whole theme, for a list window: what its rows are, where they lead, and what can be done with
/// them. Rows are numbered as rows() gave them last.
class ListSource : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  virtual ListNames names() const = 0;
  /// The rows that have every word of `typed`.
  virtual QStringList rows(const QString& typed) = 0;
  /// The title of a window that shows these rows.
  virtual QString title() const = 0;
  /// Where a row leads; none, with a report, if it leads nowhere.
  virtual std::optional<themefiles::Hit> goalOf(int row) = 0;

  /// The window is about to show the rows, or is closed.
  virtual void begin() {}
  virtual void end() {}
  /// Whether a row that was chosen stays chosen when other rows come, also when the window is opened again.
  virtual bool keepsPlace() const { return false; }

  /// What the window's button would do with these rows, for its caption. Empty if nothing can be done with any rows.
  virtual QString actionOn(const std::vector<int>& /*rows*/) const { return {}; }
  /// Whether it can be done.
  virtual bool canActOn(const std::vector<int>& /*rows*/) const { return false; }
  virtual void actOn(const std::vector<int>& /*rows*/) {}

 Q_SIGNALS:
  /// The rows are other ones now.
  void renewed();
};

}  // namespace toolwindow
