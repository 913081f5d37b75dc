#include "screens/screens.h"

namespace sample {

namespace {

/// One player's column; the digits are the game's, which counts the seats of all three arrangements through.
struct Seat {
  int digit, player;
  int x, width;
  int level;  // of a hundred
};

constexpr Seat Seats[] = {
    {1, 1, 150, 500, 84}, {2, 1, 30, 360, 84},  {3, 2, 410, 360, 71},
    {4, 1, 20, 244, 84},  {5, 2, 278, 244, 71}, {6, 3, 536, 244, 55},
};

struct ScoreLine {
  const char* box;   // static below the line
  const char* word;  // text at its left
  const char* value;
  const char* key;
  const char* shade;  // of the player's colour
  int top;
  int share;  // of a hundred of the level
};

constexpr ScoreLine Lines[] = {
    {"StaticBoxDark", "TextNotes", "TextNotesScore", "SCORE_NOTES", "Dark", 222, 70},
    {"StaticBoxLight", "TextLineBonus", "TextLineBonusScore", "SCORE_LINES", "Light", 262, 10},
    {"StaticBoxLightest", "TextGoldenNotes", "TextGoldenNotesScore", "SCORE_GOLD", "Lightest", 302, 20},
};

void addSeat(Screen& screen, const Seat& seat) {
  const std::string digit = std::to_string(seat.digit);
  const std::string person = "Player" + digit;
  const std::string color = numbered("P", seat.player);
  const int left = seat.x + 4 + seat.width / 20;
  const int right = seat.x + seat.width - 4 - seat.width / 20;
  const int middle = seat.x + seat.width / 2;
  const int level = (right - left - 28) * seat.level / 100;
  screen.statics.push_back({person + "Static1Panel", "PanelTall", {seat.x, 80, seat.width, 422}, "White"});
  screen.statics.push_back(
      {person + "Static2Photo", "Photo", {left, 94, right - left, 84}, color + "Dark", "Colorized"});
  screen.texts.push_back({person + "Text1", middle, 178, 1, 9, 1, color + "Light", numbered("PLAYER_", seat.player)});
  for (const ScoreLine& line : Lines) {
    const int textTop = line.top + middleOf(36, 0, 8);
    const int points = seat.level * line.share;
    screen.statics.push_back(
        {line.box + digit, "RowBright", {left, line.top, right - left, 36}, color + line.shade, "Colorized"});
    screen.texts.push_back({line.word + digit, left + 12, textTop, 0, 8, 0, "White", line.key});
    screen.texts.push_back({line.value + digit, right - 12, textTop, 0, 8, 2, "White", std::to_string(points)});
  }
  screen.statics.push_back({"StaticBackLevel" + digit, "Track", {left, 350, right - left, 24}, "White"});
  screen.statics.push_back({"StaticBackLevelRound" + digit, "Cap", {right - 14, 354, 8, 16}, "Plum", "Colorized"});
  screen.statics.push_back({"StaticLevel" + digit, "Level", {left + 8, 354, level, 16}, color + "Dark", "Colorized"});
  screen.statics.push_back(
      {"StaticLevelRound" + digit, "Cap", {left + 8 + level, 354, 8, 16}, color + "Dark", "Colorized"});
  screen.texts.push_back({"TextTotal" + digit, left, 386, 0, 10, 0, "Body", "SCORE_TOTAL"});
  screen.texts.push_back({"TextTotalScore" + digit, right, 376, 1, 11, 2, "Gold", std::to_string(seat.level * 100)});
  screen.texts.push_back({"TextScore" + digit, middle, 438, 1, 10, 1, "Title", numbered("RATING_", seat.player)});
  screen.texts.push_back({"TextName" + digit, middle, 100, 0, 9, 1, "White", numbered("PLAYER_", seat.player)});
}

}  // namespace

Screen scoreScreen() {
  const Place again{200, 504, 190, 46};
  const Place next{410, 504, 190, 46};
  Screen screen{
      .stem = "Score",
      .chrome = {Side::Left, "SCORE", "SCORE_HELP", "GlyphCrown", "Gold"},
      .statics =
          {
              {"StaticJewel1", "GlyphStar", {640, 12, 40, 40}, "Gold", "Font Black"},
              {"StaticJewel2", "GlyphStar", {686, 12, 40, 40}, "Gold", "Font Black"},
              {"StaticJewel3", "GlyphStar", {732, 12, 40, 40}, "Muted", "Font Black"},
          },
      .texts = {{"TextSong", 624, middleOf(64, 0, 9), 0, 9, 2, "White", "SONG_TITLE_3"}},
      .buttons =
          {
              {"ButtonAgain", "ButtonSmall", again, HueLook, {caption(again, "AGAIN", 0, 9)}, "SelectH=48"},
              {"ButtonContinue", "ButtonSmall", next, HueLook, {caption(next, "CONTINUE", 0, 9)}, "SelectH=48"},
          },
  };
  for (const Seat& seat : Seats) addSeat(screen, seat);
  return screen;
}

}  // namespace sample
