#include "screens/screens.h"

namespace sample {

namespace {

/// The lane of notes of one voice in one of the three arrangements.
struct Voice {
  const char* prefix;
  const char* bar;  // the game's own line bonus bar
  int player;
  int top, height;
};

constexpr Voice Voices[] = {
    {"P1", "P1SingBar", 1, 190, 220},   {"P1TwoP", "P1TwoPSingBar", 1, 110, 140},
    {"P2R", "P2RSingBar", 2, 300, 140}, {"P1ThreeP", "P1ThreePSingBar", 1, 104, 92},
    {"P2M", "P2MSingBar", 2, 230, 92},  {"P3R", "P3SingBar", 3, 356, 92},
};

struct Note {
  int x, width;
  int step;  // eighths of the lane's height from its top
};

constexpr Note Notes[] = {{150, 80, 5}, {240, 60, 4}, {310, 110, 3}, {440, 70, 4}, {530, 50, 2}, {600, 140, 3}};

void addVoice(Screen& screen, const Voice& voice) {
  const std::string prefix = voice.prefix;
  const std::string player = numbered("P", voice.player);
  const int noteHeight = voice.height / 6;
  screen.statics.push_back({prefix + "Static1Lane", "Lane", {20, voice.top, 760, voice.height}, "White"});
  screen.statics.push_back(
      {prefix + "Static2Tag", "RowBright", {24, voice.top - 20, 190, 32}, player + "Dark", "Colorized"});
  screen.statics.push_back(
      {prefix + "Static3Score", "RowBright", {640, voice.top - 20, 136, 32}, player + "Light", "Colorized"});
  int number = 0;
  for (const Note& note : Notes) {
    screen.statics.push_back({prefix + numbered("Static4Note", ++number),
                              "Pill",
                              {note.x, voice.top + note.step * voice.height / 8, note.width, noteHeight},
                              number == 3 ? "Gold" : player + "Light",
                              "Colorized"});
  }
  const int textTop = voice.top - 20 + middleOf(32, 0, 9);
  screen.texts.push_back({prefix + "TextPlayer", 40, textTop, 0, 9, 0, "White", numbered("PLAYER_", voice.player)});
  screen.texts.push_back({prefix + "TextScore", 762, textTop, 0, 9, 2, "White", voice.player == 2 ? "4 180" : "5 260"});
  screen.others.push_back({voice.bar, numbered("X=540|Y=", voice.top - 14) + "|W=90|H=20"});
}

}  // namespace

Screen singScreen() {
  Screen screen{
      .stem = "Sing",
      .statics =
          {
              {"Static1Bar", "TitleBar", {0, 0, 800, 72}, "Rose", "Colorized"},
              {"Static2Note", "GlyphNote", {14, 8, 46, 46}, "Gold", "Font Black"},
              {"Static3Lyrics", "PanelWide", {0, 466, 800, 134}, "White"},
              {"Static4Time", "Track", {560, 22, 220, 20}, "White"},
          },
      .texts =
          {
              {"TextLyrics", 400, 474, 1, 13, 1, "Title", "LYRICS_NOW"},
              {"TextLyricsNext", 400, 540, 0, 11, 1, "Muted", "LYRICS_NEXT"},
              {"TextSong", 72, middleOf(64, 0, 11), 0, 11, 0, "White", "SONG_TITLE_3"},
              {"TimeText", 548, middleOf(64, 0, 10), 0, 10, 2, "ColorLightest", "2:47"},
          },
      .others = {{"TimeProgress", "X=563|Y=25|W=120|H=14|Color=ColorLight|Z=0.5"}},
  };
  for (const Voice& voice : Voices) addVoice(screen, voice);
  return screen;
}

}  // namespace sample
