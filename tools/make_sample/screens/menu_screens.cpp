#include "screens/screens.h"

namespace sample {

namespace {

/// A large button with a title and a line below it; the game keeps child text 2 for a third line.
ButtonRow bigButton(const std::string& name, const Place& at, const std::string& key, const std::string& more = {}) {
  const int selectedHeight = at.h + 8;
  return {name,
          "ButtonBig",
          at,
          HueLook,
          {{"1", 30, 10, 1, 9, 0, "White", key}, {"3", 30, at.h - 44, 0, 7, 0, "Body", key + "_HELP"}},
          numbered("SelectH=", selectedHeight) + (more.empty() ? "" : "|" + more)};
}

ButtonRow smallButton(const std::string& name, const Place& at, const std::string& key, const std::string& more = {}) {
  return {name, "ButtonSmall", at, HueLook, {caption(at, key, 0, 9)}, more};
}

}  // namespace

Screen loadingScreen() {
  return {
      .stem = "Loading",
      .statics =
          {
              {"StaticCorner", "Corner", {-1, -1, -1, -1}, "Gold", "Colorized"},
              {"StaticPanel", "PanelWide", {160, 330, 480, 150}, "White"},
              {"StaticRecord", "Record", {310, 110, 180, 180}, "Rose", "Colorized"},
              {"StaticTrack1", "Track", {210, 424, 380, 22}, "White"},
              {"StaticTrack2Level", "Level", {214, 428, 236, 14}, "ColorLight", "Colorized"},
          },
      .texts =
          {
              {"TextLoading", 400, 342, 1, 12, 1, "Title", "LOADING"},
              {"TextTip", 400, 500, 0, 10, 1, "Body", "LOADING_TIP"},
          },
  };
}

Screen mainScreen() {
  return {
      .stem = "Main",
      .chrome = {Side::Left, "MAIN", "MAIN_HELP", "GlyphMic"},
      .statics =
          {
              {"StaticEqualizer",
               "Equalizer",
               {48, 438, 340, 104},
               "ColorLightest",
               "Transparent",
               "Z=0.4|Direction=1|Bands=20|Length=10|PieceW=13|PieceH=9|Space=3|Reflection=1|ReflectionSpacing=4"},
              {"StaticStar", "GlyphStar", {728, 4, -1, -1}, "P6Light", "Font Black", "Z=0.3"},
          },
      .texts = {{"TextMotto", 716, 20, 2, 9, 2, "", "MAIN_MOTTO", "ColR=1|ColG=0.86|ColB=0.6|Visible=1"}},
      .buttons =
          {
              bigButton("ButtonSolo", {40, 92, 350, 104}, "SOLO", "Visible=1|Z=0.5|Reflection=1|ReflectionSpacing=2"),
              bigButton("ButtonParty", {410, 92, 350, 104}, "PARTY"),
              bigButton("ButtonStat", {40, 206, 350, 104}, "STAT"),
              bigButton("ButtonOptions", {410, 206, 350, 104}, "OPTIONS"),
              bigButton("ButtonThemes", {40, 320, 350, 104}, "THEMES"),
              bigButton("ButtonHistory", {410, 320, 350, 104}, "HISTORY"),
              bigButton("ButtonEditor", {410, 320, 350, 104}, "EDITOR", "Visible=0"),
              smallButton("ButtonCollectionTools", {410, 444, 170, 46}, "TOOLS", "SelectH=60|FirstChild=1|Style=1"),
              smallButton("ButtonExit", {590, 444, 170, 46}, "EXIT", "Parent=1"),
          },
      .more = "Fade=1",
      .backgroundMore = "Color=ColorDark",
  };
}

Screen levelScreen() {
  const auto level = [](const std::string& name, int x, int y, const std::string& key, const std::string& tint) {
    return ButtonRow{name,
                     "PanelTall",
                     {x, y, 220, 230},
                     {"Transparent", "Accent", "1", "White", "1"},
                     {{"1", 110, 66, 1, 10, 1, tint, key}, {"2", 110, 138, 0, 8, 1, "Body", key + "_HELP"}},
                     "SelectH=242"};
  };
  Screen screen{
      .stem = "Level",
      .chrome = {Side::Middle, "LEVEL", "LEVEL_HELP", "GlyphChart", "Teal"},
      .statics =
          {
              {"StaticRow", "RowBright", {40, 470, 720, 50}, "Teal", "Colorized"},
              {"StaticTrack1", "Track", {60, 483, 680, 24}, "White"},
              {"StaticTrack2Level", "Level", {66, 488, 420, 14}, "P3Light", "Colorized"},
          },
      .texts = {{"TextChosen", 400, 522, 0, 9, 1, "ColorLightest", "LEVEL_CHOSEN"}},
      .buttons =
          {
              level("ButtonEasy", 40, 100, "EASY", "Good"),
              level("ButtonHard", 540, 100, "HARD", "Bad"),
              level("ButtonMedium", 290, 120, "MEDIUM", "Gold"),
          },
  };
  for (int column = 0; column < 3; ++column) {
    for (int place = 0; place <= column; ++place) {
      screen.statics.push_back({numbered("StaticStar", column + 1) + std::to_string(place + 1),
                                "GlyphStar",
                                {132 + 250 * column - 20 * column + 40 * place, 380, 36, 36},
                                "Gold",
                                "Font Black"});
    }
  }
  return screen;
}

Screen nameScreen() {
  // Whatever lies on this screen counts as a button, so its words are child texts, placed from their button.
  const auto player = [](int number, int x, int y, std::vector<TextRow> texts) {
    const std::string digit = std::to_string(number);
    texts.insert(texts.begin(), {"1", 110, middleOf(60, 1, 9), 1, 9, 1, "White", "PLAYER_" + digit});
    return ButtonRow{
        "Button" + digit, "Button", {x, y, 220, 60}, {"Colorized", "Accent", "1", "P" + digit + "Dark", "0.8"}, texts,
        "SelectH=66"};
  };
  return {
      .stem = "Name",
      .chrome = {Side::Right, "NAME", "NAME_HELP", "GlyphPeople", "Plum"},
      .statics =
          {
              {"StaticBoard", "Panel", {70, 96, 660, 340}, "White"},
              {"StaticField", "Field", {150, 460, 500, 60}, "White"},
          },
      .buttons =
          {
              player(1, 150, 150,
                     {{"2", 570, middleOf(64, 1, 13) - 150, 1, 13, 2, "Title", "NAME"},
                      {"3", 250, -42, 0, 10, 1, "Body", "NAME_ASK"}}),
              player(2, 430, 150, {}),
              player(3, 150, 236, {}),
              player(4, 430, 236, {}),
              player(5, 150, 322, {}),
              player(6, 430, 322, {{"2", -30, 147, 0, 12, 1, "Ink", "NAME_TYPED"}}),
          },
      .more = "Visible=0",
      .backgroundMore = "Visible=0",
      .staticsMore = "Visible=0",  // all objects of this screen count as buttons, too
  };
}

Screen top5Screen() {
  Screen screen{
      .stem = "Top5",
      .chrome = {Side::Middle, "TOP5", "TOP5_HELP", "GlyphCup", "Gold"},
      .statics = {{"StaticPanel", "Panel", {50, 84, 700, 420}, "White"}},
      .texts =
          {
              {"TextSong", 400, 96, 0, 9, 1, "Muted", "SONG_TITLE_3"},
              {"TextHeadSinger", 190, 122, 0, 8, 0, "ColorLight", "SINGER"},
              {"TextHeadScore", 700, 122, 0, 8, 2, "ColorLight", "POINTS"},
          },
      .buttons = {smallButton("ButtonAgain", {200, 506, 190, 46}, "AGAIN"),
                  smallButton("ButtonContinue", {410, 506, 190, 46}, "CONTINUE")},
  };
  constexpr const char* Scores[] = {"9 840", "9 310", "8 770", "7 950", "6 420"};
  for (int place = 1; place <= 5; ++place) {
    const std::string digit = std::to_string(place);
    const int y = 150 + (place - 1) * 66;
    const bool first = place == 1;
    screen.statics.push_back({"StaticRow" + digit,
                              first ? "RowBright" : "Row",
                              {80, y, 640, 58},
                              "Gold",
                              first ? "Colorized" : "Transparent"});
    screen.texts.push_back({"TextNumber" + digit, 130, middleOf(58, 1, 11) + y, 1, 11, 1, "Gold", digit});
    screen.texts.push_back({"TextSinger" + digit, 190, middleOf(58, 0, 11) + y, 0, 11, 0, "White", "SINGER_" + digit});
    screen.texts.push_back({"TextScore" + digit, 700, middleOf(58, 0, 11) + y, 0, 11, 2, "Body", Scores[place - 1]});
  }
  return screen;
}

Screen statMainScreen() {
  return {
      .stem = "StatMain",
      .chrome = {Side::Left, "STAT", "STAT_HELP", "GlyphChart", "Rose"},
      .statics =
          {
              {"StaticPanel", "PanelTall", {40, 96, 330, 440}, "White"},
              {"StaticStar1", "GlyphStar", {70, 300, -1, -1}, "Gold", "Font Black"},
              {"StaticStar2", "GlyphNote", {240, 300, 90, 90}, "Rose", "Font Black"},
          },
      .texts =
          {
              {"TextOverview", 70, 112, 1, 9, 0, "Title", "STAT_OVERVIEW"},
              {"TextSongs", 70, 176, 0, 10, 0, "Body", "STAT_SONGS"},
              {"TextSung", 70, 216, 0, 10, 0, "Body", "STAT_SUNG"},
              {"TextSince", 70, 470, 0, 8, 0, "Muted", "STAT_SINCE"},
          },
      .buttons =
          {
              bigButton("Button1Scores", {400, 96, 360, 100}, "STAT_SCORES"),
              bigButton("Button2Singers", {400, 204, 360, 100}, "STAT_SINGERS"),
              bigButton("Button3Artists", {400, 312, 360, 100}, "STAT_ARTISTS"),
              smallButton("ButtonExit", {560, 480, 200, 50}, "BACK"),
          },
  };
}

Screen statDetailScreen() {
  Screen screen{
      .stem = "StatDetail",
      .chrome = {Side::Right, "STAT_DETAIL", "STAT_HELP", "GlyphList", "Teal"},
      .statics = {{"StaticChart", "Equalizer", {560, 320, 200, 160}, "White"},
                  {"StaticPanel", "Panel", {536, 92, 236, 210}, "White"}},
      .texts =
          {
              {"TextPage", 654, 254, 0, 9, 1, "Muted", "STAT_PAGE"},
              {"TextSum", 654, 110, 1, 9, 1, "Gold", "STAT_BEST"},
              {"TextSumValue", 654, 172, 1, 14, 1, "White", "9 840"},
          },
      .buttons =
          {
              smallButton("ButtonExit", {596, 500, 170, 46}, "BACK"),
              smallButton("ButtonNext", {216, 500, 170, 46}, "NEXT"),
              smallButton("ButtonPrevious", {36, 500, 170, 46}, "PREVIOUS"),
              smallButton("ButtonReverse", {396, 500, 170, 46}, "REVERSE"),
          },
  };
  for (int row = 1; row <= 8; ++row) {
    const std::string digit = std::to_string(row);
    const int y = 92 + (row - 1) * 49;
    screen.statics.push_back({"StaticRow" + digit, "Row", {30, y, 490, 44}, "White"});
    screen.texts.push_back({"TextList" + digit, 50, y + middleOf(44, 0, 9), 0, 9, 0, "Body", "SINGER_" + digit});
    screen.texts.push_back({"TextListValue" + digit, 500, y + middleOf(44, 0, 9), 0, 9, 2,
                            row % 2 == 0 ? "P2Light" : "P6Lightest", std::to_string(9840 - row * row * 113)});
  }
  return screen;
}

}  // namespace sample
