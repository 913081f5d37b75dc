#include "screens/screens.h"

namespace sample {

namespace {

ButtonRow plainButton(const std::string& name, const Place& at, const std::string& key, int size = 10) {
  return {name, "Button", at, HueLook, {caption(at, key, 0, size)}, numbered("SelectH=", at.h + 4)};
}

}  // namespace

Screen songScreen() {
  Screen screen{
      .stem = "Song",
      .chrome = {Side::Left, "SONG", "SONG_HELP", "GlyphNote", "Plum"},
      .statics =
          {
              {"StaticBox", "Panel", {456, 84, 324, 300}, "White"},
              {"StaticCover", "Cover", {538, 106, 160, 160}, "White", "Plain", "Reflection=1|ReflectionSpacing=6"},
              {"StaticNonParty2Medal", "GlyphCup", {476, 406, 60, 60}, "Gold", "Font Black"},
              {"StaticNonParty1Panel", "PanelWide", {456, 392, 324, 88}, "White"},
              {"StaticPartyPanel", "PanelWide", {20, 392, 760, 88}, "White"},
              {"StaticPartyStripe1", "RowBright", {36, 408, 350, 26}, "P1Dark", "Colorized"},
              {"StaticPartyStripe2", "RowBright", {414, 408, 350, 26}, "P2Dark", "Colorized"},
          },
      .texts =
          {
              {"TextArtist", 618, 310, 0, 9, 1, "Muted", "SONG_ARTIST"},
              {"TextCategory", 780, 16, 0, 11, 2, "ColorLightest", "SONG_CATEGORY"},
              {"TextNonPartyBest", 556, 400, 0, 9, 0, "Gold", "SONG_BEST"},
              {"TextNonPartyScore", 556, 424, 1, 9, 0, "White", "9 310"},
              {"TextNumber", 618, 342, 0, 8, 1, "Body", "SONG_NUMBER"},
              {"TextPartyTeam1", 48, 408 + middleOf(26, 0, 9), 0, 9, 0, "White", "TEAM_1"},
              {"TextPartyTeam2", 752, 408 + middleOf(26, 0, 9), 0, 9, 2, "White", "TEAM_2"},
              {"TextSorting", 24, 500, 0, 9, 0, "Body", "SORTING"},
              {"TextSortingValue", 280, 500, 0, 9, 1, "White", "SORTING_VALUE"},
              {"TextTitle2", 618, 268, 1, 8, 1, "Title", "SONG_TITLE_3"},
          },
      .buttons =
          {
              plainButton("ButtonMenu", {624, 494, 150, 52}, "MENU"),
              plainButton("ButtonSing", {456, 494, 160, 52}, "SING"),
              {"SelectSorting", "Select", {130, 496, 300, 44}, FrameLook, {}, "SkipX=10|SBGColor=White"},
          },
      .others =
          {
              {"Cover", "X=538|Y=106|W=160|H=160|Style=4"},
              {"Equalizer", "Visible=1|X=476|Y=360|PieceW=6|PieceH=3|Bands=24|Direction=0|Length=8|Space=1"},
          },
  };
  screen.statics.push_back({"VideoIcon", "GlyphFilm", {728, 100, 40, 40}, "White", "Font Black"});
  for (int row = 1; row <= 6; ++row) {
    const std::string digit = std::to_string(row);
    const bool chosen = row == 3;
    const int y = 90 + (row - 1) * 49;
    screen.statics.push_back({"StaticRow" + digit,
                              chosen ? "RowBright" : "Row",
                              {20, y, 424, 44},
                              "Accent",
                              chosen ? "Colorized" : "Transparent"});
    screen.texts.push_back(
        {"TextRow" + digit, 40, y + middleOf(44, 0, 10), 0, 10, 0, chosen ? "White" : "Muted", "SONG_TITLE_" + digit});
  }
  for (int team = 1; team <= 2; ++team) {
    for (int joker = 1; joker <= 5; ++joker) {
      screen.statics.push_back({numbered("StaticTeam", team) + numbered("Joker", joker),
                                "GlyphStar",
                                {(team == 1 ? 44 : 596) + 32 * (joker - 1), 438, 28, 28},
                                joker < 4 ? "Gold" : "Muted",
                                "Font Black"});
    }
  }
  return screen;
}

Screen songMenuScreen() {
  return {
      .stem = "SongMenu",
      .statics =
          {
              {"Static1Panel", "PanelTall", {190, 40, 420, 520}, "White"},
              {"Static2Bar", "RowBright", {206, 60, 388, 60}, "Rose", "Colorized"},
              {"Static3Sign", "GlyphList", {222, 68, 44, 44}, "White", "Font Black"},
              {"Static4Line", "Track", {226, 420, 348, 8}, "White"},
          },
      .texts =
          {
              {"TextChoice", 400, 442, 0, 9, 1, "Body", "MENU_CHOICE"},
              {"TextTitle", 400, 60 + middleOf(60, 1, 10), 1, 10, 1, "White", "MENU_TITLE"},
              {"TextValue", 400, 484 + middleOf(44, 0, 10), 0, 10, 1, "Gold", "SONG_CATEGORY"},
          },
      .buttons =
          {
              plainButton("Button1", {226, 140, 348, 62}, "SING"),
              plainButton("Button2", {226, 208, 348, 62}, "MENU_PLAYERS"),
              plainButton("Button3", {226, 276, 348, 62}, "MENU_REFRESH"),
              plainButton("Button4", {226, 344, 348, 62}, "BACK"),
              {"SelectCategory", "Select", {230, 484, 340, 44}, FrameLook},
          },
  };
}

Screen songJumptoScreen() {
  return {
      .stem = "SongJumpto",
      .statics =
          {
              {"Static1Panel", "Panel", {110, 110, 580, 380}, "White"},
              {"Static2Lens", "GlyphLens", {140, 130, 60, 60}, "Teal", "Font Black"},
              {"Static3Row", "Row", {140, 360, 520, 44}, "White"},
              {"Static4Corner", "Corner", {0, 0, 150, 150}, "Teal", "Colorized"},
          },
      .texts =
          {
              {"TextFound", 400, 360 + middleOf(44, 0, 9), 0, 9, 1, "Good", "JUMP_FOUND"},
              {"TextSearchType", 160, 276, 0, 9, 0, "Muted", "JUMP_TYPE"},
              {"TextTitle", 220, 134, 1, 11, 0, "Title", "JUMP_TITLE"},
              {"TextValue", 490, 300 + middleOf(44, 0, 9) - 30, 0, 9, 1, "White", "JUMP_VALUE"},
          },
      .buttons =
          {
              {"ButtonGo", "ButtonSmall", {320, 422, 160, 46}, HueLook, {caption({0, 0, 160, 46}, "JUMP_GO", 0, 9)}},
              {"ButtonSearch",
               "Field",
               {150, 208, 500, 54},
               {"Transparent", "White", "1", "White", "0.8"},
               {{"1", 24, middleOf(54, 0, 11), 0, 11, 0, "Ink", "JUMP_TYPED"}}},
              {"SelectType", "Select", {320, 270, 340, 44}, FrameLook},
          },
      .others = {{"ButtonSearchText", "X=174|Y=210|Font=0|Size=11|Align=0|Color=Ink|Text=JUMP_TYPED"}},
  };
}

}  // namespace sample
