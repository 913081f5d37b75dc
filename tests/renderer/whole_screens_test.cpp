#include <QTest>

#include "platform/files.h"
#include "renderer/chosen_screen.h"
#include "renderer/render_driver.h"
#include "renderer/trial_drawing.h"
#include "support/picture_results.h"
#include "support/stage.h"
#include "themefiles/tag_reader.h"

using namespace support;

namespace {

const QString Everything = QFileInfo(QStringLiteral(RESULTS)).path() + u'/';

/// Writes a render down: a line for each object drawn, or left out ("-"), and each report ("!"), with what the window
/// was told behind it.
class Record : public renderer::PlainHost, public platform::StatusLine {
 public:
  Record(const QString& screen, const QString& scheme) : PlainHost(screen, scheme) {}

  QStringList lines;
  renderer::RenderAccount account;

  void begin(const QString& line) {
    objects_ = missing_ = 0;
    lines += line;
  }
  void setProgressValue(int value) override {
    PlainHost::setProgressValue(value);
    tell(u'=' + QString::number(progressValue()));
  }
  void setProgressText(const QString& text) override { tell(text); }
  void setProgressVisible(bool visible) override { tell(visible ? u"bar"_s : u"no bar"_s); }
  void Refresh() override { tell(u"refresh"_s); }
  void yield() override { tell(u"yield"_s); }
  void fillButtonList(const QStringList& rows) override { tell(u'{' + rows.join(u',') + u'}'); }
  void selectFirstButton() override { tell(u"first"_s); }
  void setButtonListVisible(bool visible) override { tell(visible ? u"list"_s : u"no list"_s); }

 protected:
  void showReport(const QString& text) override {
    takeAccount();
    lines += u"! "_s + text;
  }

 private:
  void tell(const QString& word) {
    takeAccount();
    lines.last() += u' ' + word;
  }
  /// The lines of what the account has more than before.
  void takeAccount() {
    for (; missing_ < account.missing.size(); ++missing_) {
      lines += u"- %1: %2"_s.arg(account.missing[missing_].section, reasonText(account.missing[missing_]));
    }
    for (; objects_ < account.objects.size(); ++objects_) {
      const auto& [section, place, owner, heightKey] = account.objects[objects_];
      lines += u"%1 %2,%3 %4x%5 "_s.arg(section).arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height()) +
               (owner.isEmpty() ? heightKey : u"of "_s + owner);
    }
  }

  std::size_t objects_ = 0, missing_ = 0;
};

/// All that comes of a screen: the list of its objects with rows and marks, then its drawings.
struct Whole {
  QStringList lines;
  std::vector<QImage> pictures;
  friend bool operator==(const Whole&, const Whole&) = default;
};

}  // namespace

/// The pictures of all screens of a theme that has everything, and all that is told about them, against the data kept.
class WholeScreensTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    QFile theme(Everything + u"theme.txt"_s);
    QVERIFY(theme.open(QIODevice::ReadOnly));
    folder_.put(u"theme.ini"_s, linesOf(theme.readAll(), "\n"));
    state_.paths.ThemeFile = folder_.path(u"theme.ini"_s);
    state_.paths.SkinFile = platform::programPath(Everything + u"skin.ini"_s);
    state_.paths.LanguageFile = platform::programPath(Everything + u"english.ini"_s);
    state_.paths.SkinDirectory = platform::programPath(Everything).chopped(1);
    state_.BackgroundColor = 0xC0D8F0;
    themefiles::InitScreenTable(state_);
    Panel panel;
    themefiles::ReadColors(state_, panel);
    QCOMPARE(panel.texts, QStringList());
  }

  void screens_data() {
    QTest::addColumn<int>("number");
    for (int i = 0; i < int(state_.ScreenTable.size()); ++i) {
      QTest::addRow("%02d %s", i + 1, qPrintable(state_.ScreenTable.at(i).Name)) << i;
    }
  }

  void screens() {
    QFETCH(int, number);
    const Whole whole = made(number, nullptr);
    const QString name = QStringLiteral("%1").arg(number + 1, 2, 10, QChar(u'0'));
    compareText(name + u".txt"_s, whole.lines);
    comparePicture(name + u".png"_s, whole.pictures[0]);
    if (whole.pictures.size() > 1) comparePicture(name + u"b.png"_s, whole.pictures[1]);
    // Kept pictures change nothing, neither those of other screens nor the screen's own.
    for (auto* store : {&store_, &store_, &small_}) QVERIFY(made(number, store) == whole);
    QVERIFY(small_.bytes() <= Little && (store_.bytes() > Little || number < 17));
  }

  void moreButtonsThanAByteCounts() {
    Stage stage;
    QByteArray theme;
    for (int i = 0; i < 260; ++i) theme += "[MainButton" + QByteArray::number(1000 + i) + "]|";
    stage.setTheme(theme);
    stage.draw();
    QCOMPARE(int(stage.state.ButtonCount), 255);
    QCOMPARE(stage.host.buttons.size(), 255);
    QCOMPARE(stage.host.percents, QStringList(u"0%"_s));
  }

 private:
  /// The screen without a window as the editor comes to it: listed, the first object selected, drawn, and drawn again
  /// with the second button selected.
  Whole made(int number, renderer::PreparedPictures* store) const {
    themefiles::ModuleState state = state_;
    const themefiles::ScreenRow& screen = state.ScreenTable.at(number);
    const QString scheme = themefiles::schemeNames(state).at(number % 9);
    Record record(screen.Name, scheme);
    record.lines += screen.Name + u", "_s + scheme;
    themefiles::SortedTags tags;
    themefiles::listScreenTags(state, screen.Name, tags, record, [] {});
    drawing::Surface measuring;
    for (int row = 0; row < tags.ListCount(); ++row) {
      tags.SetListIndex(row);
      QStringList rows;
      for (const auto& [key, value] : themefiles::ReadTag(state, tags.List(row), record)) rows += key + u'=' + value;
      record.lines += tags.List(row) + u": "_s + rows.join(u'|');
      Mark mark;
      renderer::DrawCursor(state, tags, measuring, mark, record);
      record.lines += u"    "_s + QString::fromLatin1(mark.calls).trimmed();
    }
    renderer::NoStatus quiet;
    renderer::ChosenScreen chosen(state_, screen.Name, scheme, quiet);
    state = chosen.state;
    drawing::Surface& surface = chosen.workspace;
    surface.wipe(Qt::magenta);
    Whole whole;
    drawing::Graphics graphics;
    renderer::NoDialogs dialogs(record);
    renderer::TrialFiles trials;
    renderer::RenderContext context{.state = state,
                                    .tags = tags,
                                    .Workspace = surface,
                                    .host = record,
                                    .status = record,
                                    .dialogs = dialogs,
                                    .graphics = graphics,
                                    .account = record.account,
                                    .pictures = store};
    for (const auto& look : {u"drawn:"_s, u"drawn with button 2:"_s}) {
      record.begin(look);
      renderer::DrawScreen(context);
      record.lines +=
          u"step %1, button %2 of %3"_s.arg(state.ProgressStep).arg(state.SelectedButton).arg(state.ButtonCount);
      whole.pictures.push_back(surface.image());
      renderer::drawTrial(context, {}, trials);
      if (surface.image() != whole.pictures.back()) QTest::qFail("a trial of nothing differs", __FILE__, __LINE__);
      if (state.ButtonCount < 2) break;
      state.SelectedButton = 2;
    }
    record.lines += u"looked for:"_s;
    for (const auto& [path, identity] : record.account.pictures) {
      record.lines.last() += u' ' + path.mid(state.paths.SkinDirectory.size() + 1) + (identity ? u""_s : u" (none)"_s);
    }
    whole.lines = record.lines;
    return whole;
  }

  Folder folder_;
  themefiles::ModuleState state_;
  static constexpr qsizetype Little = 3'000'000;
  renderer::PreparedPictures store_, small_{Little};
};

QTEST_MAIN(WholeScreensTest)
#include "whole_screens_test.moc"
