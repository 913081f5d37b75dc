#include <QTest>

#include "editing/immediate_edits.h"
#include "editing/reference_keys.h"
#include "editing/theme_colours.h"
#include "support/editing.h"

using namespace support;
using editing::KeyAdding;
using editing::ReferenceKind;

namespace {

const QString Kept = u"Kept in the working copy; the next Update makes Save available"_s;

}  // namespace

/// Edits that don't wait for Update: the theme's colours, and the keys of texts and textures.
class ColoursAndKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void colours() {
    OpenTheme theme("[Colors]|Red=200 40 40|red=1 1 1|Blue=0 0 9|");
    editing::Session& session = theme.session;
    const auto value = [&](const char* name) {
      return editing::colorValue(theme.state, editing::ColorGroup::Theme, QLatin1StringView(name), {});
    };
    QVERIFY(editing::changeColor(session, u"Blue"_s, u"1 2 3"_s) && *value("Blue") == u"1 2 3");
    QCOMPARE(theme.told(), u"colours"_s);
    QVERIFY(theme.report() == Kept && !theme.state.Changed);
    QVERIFY(!editing::changeColor(session, u"P1Dark"_s, u"1 2 3"_s) && !editing::changeColor(session, {}, u"1 2 3"_s));
    // Names that differ only in case are one line of the file: the first.
    QVERIFY(editing::changeColor(session, u"red"_s, u"4 5 6"_s));
    QCOMPARE(*value("Red") + *value("red"), u"4 5 64 5 6"_s);
    QCOMPARE(theme.copy("theme"), QByteArray("[Colors]|Red=4 5 6|red=1 1 1|Blue=1 2 3|"));
    QCOMPARE(editing::removeColor(session, u"red"_s), u"Red"_s);
    QVERIFY(!value("Red") && *value("red") == u"1 1 1");
    QVERIFY(!editing::removeColor(session, u"P1Dark"_s));
    // A free row, one that has the name, and a line that another program has added.
    QCOMPARE(editing::addColor(session, u"New"_s), u"New"_s);
    QCOMPARE(theme.report(), Kept);
    QCOMPARE(editing::addColor(session, u"BLUE"_s), u"Blue"_s);
    QCOMPARE(theme.report(), Kept + u"; Blue was 1 2 3 and is a new colour now"_s);
    QCOMPARE(*value("Blue"), u"150 150 150"_s);
    QCOMPARE(theme.copy("theme"), QByteArray("[Colors]|red=1 1 1|Blue=150 150 150|New=150 150 150|"));
    theme.putCopy("theme", theme.copy("theme") + "Green=1 2 3|");
    QCOMPARE(editing::addColor(session, u"green"_s), u"green"_s);
    QVERIFY(theme.report().contains(u"green was 1 2 3 and is a new colour now"));
    theme.putCopy("theme", {});
    QCOMPARE(editing::addColor(session, u"red"_s), u"red"_s);
    QVERIFY(theme.report().contains(u"red was 1 1 1 and is a new colour now"));
    const auto saved = editing::savedColor(theme.state, u"Blue"_s);
    QVERIFY(saved && editing::putSavedColorBack(session, u"Blue"_s, *saved) && *value("Blue") == u"0 0 9");
    // Put back over one that is named in another case, it has its own name again.
    QVERIFY(editing::removeColor(session, u"Blue"_s) && editing::addColor(session, u"BLUE"_s) == u"BLUE");
    const auto again = editing::savedColor(theme.state, u"BLUE"_s);
    QVERIFY(again && editing::putSavedColorBack(session, u"BLUE"_s, *again) && !value("BLUE"));
    QCOMPARE(*value("Blue"), u"0 0 9"_s);
    theme.state.ThemeColors.back().Name = u"NEW"_s;
    QVERIFY(editing::removeColor(session, u"New"_s) && *value("NEW") == u"0 0 0");
    theme.told();
    theme.state.paths.ThemeFile = theme.folder.path(u"none/theme.ini.tmp"_s);
    QVERIFY(!editing::changeColor(session, u"Blue"_s, u"7 7 7"_s) && !editing::addColor(session, u"More"_s));
    QVERIFY(*value("Blue") == u"0 0 9" && !value("More") && theme.told().isEmpty());
    QVERIFY(theme.report().startsWith(u"Error while adding colors ["));
    for (themefiles::NamedColor& row : theme.state.ThemeColors) row.Name = u"used"_s;
    QVERIFY(!editing::addColor(session, u"More"_s));
    QCOMPARE(theme.report(), u"Error while adding colors []"_s);
  }

  /// The theme's own colour of a name comes before those of the program and the players.
  void colourGroups() {
    const OpenTheme theme("[Colors]|Red=200 40 40|P1Dark=1 1 1|ColorLight=2 2 2|");
    for (const auto& [name, group] : {std::pair{"Red", 0},
                                      {"P1Dark", 0},
                                      {"ColorLight", 0},
                                      {"ColorDark", 1},
                                      {"P2Dark", 2},
                                      {"", 0},
                                      {"red", -1}}) {
      const auto found = editing::colorGroupOf(theme.state, QLatin1StringView(name));
      QCOMPARE(found ? static_cast<int>(*found) : -1, group);
    }
  }

  void keys() {
    OpenTheme theme("[Main]|", "Plate=plate.png|", "HELLO=Hello there|");
    for (const auto& [kind, file, section, key, content] :
         {std::tuple{ReferenceKind::Text, "language", "[Text]|", u"HELLO"_s, u"Hello there"_s},
          {ReferenceKind::Texture, "skin", "[Textures]|", u"Plate"_s, u"plate.png"_s}}) {
      QCOMPARE(editing::referenceKeys(theme.state, kind), QStringList{key});
      QCOMPARE(editing::referenceContent(theme.session, kind, key), content);
      QVERIFY(editing::addReferenceKey(theme.session, kind, key.toLower()) == KeyAdding::Exists);
      QVERIFY(editing::addReferenceKey(theme.session, kind, u"New"_s) == KeyAdding::Done);
      QVERIFY(editing::removeReferenceKey(theme.session, kind, key));
      QCOMPARE(theme.copy(file), section + QByteArray("New=|"));
      QVERIFY(theme.report() == Kept && !theme.state.Changed);
      // What the next edit makes anew counts where the copy is empty.
      theme.putCopy(file, {});
      QCOMPARE(editing::referenceContent(theme.session, kind, u"New"_s), QString());
      QVERIFY(editing::addReferenceKey(theme.session, kind, u"new"_s) == KeyAdding::Exists);
      for (const int size : {32000, 32001}) {
        theme.putCopy(file, section + QByteArray("Long=") + QByteArray(size, 'w') + '|');
        QCOMPARE(editing::referenceContent(theme.session, kind, u"Long"_s).has_value(), size == 32000);
      }
      QCOMPARE(theme.report(), u"Error while reading Value [Long is too long to be edited here]"_s);
    }
    theme.state.paths.SkinFile = theme.folder.path(u"none/skin.ini.tmp"_s);
    QVERIFY(editing::addReferenceKey(theme.session, ReferenceKind::Texture, u"More"_s) == KeyAdding::Failed);
    QVERIFY(theme.report().startsWith(u"Error while writing tempfile ["));
  }

  void names() {
    for (const char* name : {"", " a", "a ", "a=b", ";a", "[a", "a\nb", "\ta", "a\t", "\xe4\xb8\xad"}) {
      QVERIFY2(!editing::isUsableName(QString::fromUtf8(name)), name);
    }
    for (const char* name : {"a", "a b", "a;[b", "#a", "\xc3\xa4"}) {
      QVERIFY2(editing::isUsableName(QString::fromUtf8(name)), name);
    }
  }
};

QTEST_GUILESS_MAIN(ColoursAndKeysTest)
#include "colours_and_keys_test.moc"
