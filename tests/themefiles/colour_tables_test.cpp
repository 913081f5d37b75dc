#include "themefiles/colour_tables.h"

#include <QTest>

#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

const QString Name = u"a.ini"_s;

ModuleState readFrom(const QByteArray& theme, Panel& panel, ModuleState state = {}) {
  Folder folder;
  folder.put(Name, theme);
  state.Paths.ThemeFile = folder.path(Name);
  ReadColors(state, panel);
  return state;
}

QByteArray colours(int count) {
  QByteArray theme = "[Colors]\n";
  for (int i = 1; i <= count; ++i) theme += "c" + QByteArray::number(i) + "=" + QByteArray::number(i) + " 0 0\n";
  return theme;
}

}  // namespace

class ColourTablesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void asManyKeysAsRows() {
    Panel panel;
    ModuleState state = readFrom(colours(99), panel);
    QVERIFY(panel.texts.isEmpty());
    QVERIFY(state.ThemeColors[98].Name == u"c99" && state.ThemeColors[98].Value == u"99 0 0");
    QVERIFY(state.ThemeColors[99].Name.isEmpty() && state.ThemeColors[99].Value == u"0 0 0");
    QCOMPARE(SchemeNames(state).join(u' '), u"Blue Green Pink Red Violet Orange Yellow Brown Black"_s);

    // A shorter list leaves the rows behind it, none at all leaves every row.
    state = readFrom("[Colors]\nnew=\n", panel, state);
    QVERIFY(state.ThemeColors[0].Name == u"new" && state.ThemeColors[0].Value.isEmpty());
    QVERIFY(state.ThemeColors[1].Value == u"0 0 0" && state.ThemeColors[2].Name == u"c3");
    QCOMPARE(readFrom("[Color]\na=1 1 1\n", panel, state).ThemeColors[0].Name, u"new"_s);
  }

  void oneKeyTooMany() {
    Panel panel;
    const ModuleState state = readFrom(colours(100), panel);
    QCOMPARE(panel.texts.size(), 1);
    QVERIFY(panel.texts[0].startsWith(u"Error while reading Colors [") && panel.texts[0].endsWith(u']'));
    QCOMPARE(state.ThemeColors[99].Name, u"c100"_s);
    QCOMPARE(SchemeNames(state), QStringList(9, QString()));
  }

  void names() {
    Panel panel;
    ModuleState state = readFrom(
        "[Colors]\nOwn=1 2 3\nP2Dark=0 0 0\nTwice=7 8 9\nTwice=0 0 0\nEmpty=\nEmpty=1 1 1\nColorDark=1 1 1\n", panel);
    state.ThemeColors[20] = {u"own"_s, u"4 5 6"_s};
    // Name, scheme, colour.
    for (const QString& row : {u"/Blue/"_s, u"colorlight/Blue/135 211 251"_s, u"COLORLIGHTEST/Brown/229 204 165"_s,
                               u"ColorDark/Pink/255 175 247"_s, u"ColorLightest/Black/153 153 153"_s,
                               u"ColorLightest/Violet/230 63 230"_s, u"ColorDark/Red/247 71 71"_s, u"ColorDark/red/"_s,
                               u"p1dark/Blue/"_s, u"P1Dark/Red/71 175 247"_s, u"P2Dark/Blue/247 71 71"_s,
                               u"Own/Blue/1 2 3"_s, u"own/Blue/4 5 6"_s, u"Twice/Blue/7 8 9"_s, u"Empty/Blue/"_s}) {
      const QStringList parts = row.split(u'/');
      QVERIFY2(ResolveColor(state, parts[0], parts[1]) == parts[2], qPrintable(row));
    }
  }

  void numbers() {
    const auto number = [](const char* text) { return ColorToRGB(QString::fromLatin1(text)); };
    QCOMPARE(number("255 0 0"), 255);
    QCOMPARE(number("1 2 3 4"), 0x030201);
    QCOMPARE(number("12.5 13.5 0.5"), 0x000E0C);
    QCOMPARE(number("1  3"), 0x030001);
    QCOMPARE(number("x 2 3"), 0x030200);
    QCOMPARE(number("32767 32767 32767"), 0x7F7EFF);
    for (const char* text : {"", "1 2", "-1 2 3", "1 2 32768"}) QCOMPARE(number(text), 0);
  }
};

QTEST_MAIN(ColourTablesTest)
#include "colour_tables_test.moc"
