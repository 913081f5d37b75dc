#include "screens/screens.h"

namespace sample {

namespace {

struct Choice {
  const char* label;
  const char* value;
};

/// A page of choices: rows in one or two columns, each a label and a frame with the chosen value.
struct Page {
  std::string stem;
  Chrome chrome;
  Place first;  // the first row
  int labelWidth;
  int pitch;
  int columns;
  std::vector<Choice> choices;
  Place save;  // the first of the two buttons; the other one stands right of it
  std::vector<StaticRow> statics;
  std::vector<TextRow> texts;
};

Screen pageScreen(const Page& page) {
  Screen screen{.stem = page.stem, .chrome = page.chrome, .statics = page.statics, .texts = page.texts};
  const int size = page.first.w > 500 ? 10 : 8;
  int number = 0;
  for (const Choice& choice : page.choices) {
    const std::string digit = std::to_string(number + 1);
    const int x = page.first.x + number % page.columns * (page.first.w + 16);
    const int y = page.first.y + number / page.columns * page.pitch;
    const Place frame{x + page.labelWidth, y + 3, page.first.w - page.labelWidth - 6, page.first.h - 6};
    const int textTop = y + middleOf(page.first.h, 0, size);
    screen.statics.push_back({"StaticRow" + digit, "Row", {x, y, page.first.w, page.first.h}, "White"});
    screen.texts.push_back({"TextLabel" + digit, x + 16, textTop, 0, size, 0, "Body", choice.label});
    screen.texts.push_back({"TextValue" + digit, frame.x + frame.w / 2, textTop, 0, size, 1, "White", choice.value});
    screen.buttons.push_back({"Select" + digit, "Select", frame, FrameLook, {}, "SkipX=8|TColor=White|TDColor=Muted"});
    ++number;
  }
  Place place = page.save;
  for (const char* word : {"SAVE", "BACK"}) {
    screen.buttons.push_back({word == std::string("SAVE") ? "ButtonSave" : "ButtonExit",
                              "ButtonSmall",
                              place,
                              HueLook,
                              {caption(place, word, 0, 9)},
                              numbered("SelectH=", place.h + 4)});
    place.x += place.w + 14;
  }
  return screen;
}

}  // namespace

Screen optionsScreen() {
  struct Entry {
    const char* name;
    const char* key;
  };
  constexpr Entry Entries[] = {{"ButtonAdvanced", "OPT_ADVANCED"}, {"ButtonGame", "OPT_GAME"},
                               {"ButtonGraphics", "OPT_GRAPHICS"}, {"ButtonLyrics", "OPT_LYRICS"},
                               {"ButtonRecord", "OPT_RECORD"},     {"ButtonSound", "OPT_SOUND"},
                               {"ButtonThemes", "OPT_THEMES"},     {"ButtonZExit", "BACK"}};
  Screen screen{
      .stem = "Options",
      .chrome = {Side::Middle, "OPTIONS", "OPTIONS_HELP", "GlyphGear", "Plum"},
      .statics = {{"StaticPanel", "Panel", {60, 88, 680, 456}, "White"}},
      .texts = {{"TextDescription", 400, 500, 0, 9, 1, "Gold", "OPTIONS_CHOOSE"}},
  };
  int number = 0;
  for (const Entry& entry : Entries) {
    const Place at{92 + number % 2 * 316, 110 + number / 2 * 96, 300, 82};
    screen.buttons.push_back({entry.name, "Button", at, HueLook, {caption(at, entry.key, 1, 8)}, "SelectH=86|Fade=0"});
    ++number;
  }
  return screen;
}

std::vector<Screen> optionPages() {
  const Page pages[] = {
      {"OptionsGame",
       {Side::Left, "OPT_GAME", "PAGE_HELP", "GlyphPlay", "Good"},
       {60, 96, 680, 52},
       320,
       62,
       1,
       {{"GAME_PLAYERS", "3"},
        {"GAME_DIFFICULTY", "MEDIUM"},
        {"GAME_LANGUAGE", "LANGUAGE"},
        {"GAME_TABS", "ON"},
        {"GAME_SORTING", "SORTING_VALUE"},
        {"GAME_DEBUG", "OFF"}},
       {226, 490, 170, 50},
       {},
       {}},
      {"OptionsGraphics",
       {Side::Right, "OPT_GRAPHICS", "PAGE_HELP", "GlyphScreen", "Teal"},
       {40, 100, 450, 58},
       190,
       72,
       1,
       {{"GRAPH_FULL", "ON"},
        {"GRAPH_SIZE", "800 x 600"},
        {"GRAPH_DEPTH", "GRAPH_BITS"},
        {"GRAPH_WAVES", "OFF"},
        {"GRAPH_VIDEO", "ON"}},
       {440, 484, 160, 50},
       {{"StaticPicture1", "Panel", {512, 100, 256, 260}, "White"},
        {"StaticPicture2", "Cover", {552, 130, 176, 150}, "White", "Plain"},
        {"StaticPicture3", "GlyphScreen", {696, 290, 48, 48}, "Teal", "Font Black"}},
       {{"TextPreview", 536, 296, 0, 9, 0, "Muted", "GRAPH_PREVIEW"}}},
      {"OptionsSound",
       {Side::Left, "OPT_SOUND", "PAGE_HELP", "GlyphSpeaker", "Accent"},
       {30, 300, 362, 50},
       160,
       60,
       2,
       {{"SOUND_VOLUME", "80 %"},
        {"SOUND_CLICK", "OFF"},
        {"SOUND_BOOST", "0 dB"},
        {"SOUND_LIMIT", "15 %"},
        {"SOUND_PREVIEW", "60 %"},
        {"SOUND_BEAT", "ON"}},
       {430, 492, 160, 50},
       {{"StaticMeter1", "PanelWide", {30, 90, 740, 196}, "White"},
        {"StaticMeter2", "Equalizer", {60, 110, 460, 150}, "White"},
        {"StaticMeter3", "GlyphSpeaker", {590, 120, 130, 130}, "ColorLight", "Font Black"}},
       {}},
      {"OptionsLyrics",
       {Side::Middle, "OPT_LYRICS", "PAGE_HELP", "GlyphNote", "Good"},
       {120, 250, 560, 56},
       230,
       68,
       1,
       {{"LYRICS_FONT", "LYRICS_BOLD"}, {"LYRICS_EFFECT", "LYRICS_ZOOM"}, {"LYRICS_SOLMIZATION", "OFF"}},
       {236, 480, 160, 50},
       {{"StaticSample1", "PanelWide", {60, 92, 680, 136}, "White"},
        {"StaticSample2", "GlyphMic", {80, 120, 70, 70}, "Gold", "Font Black"}},
       {{"TextSample1", 430, 96, 1, 12, 1, "Title", "LYRICS_NOW"},
        {"TextSample2", 430, 168, 0, 11, 1, "Muted", "LYRICS_NEXT"}}},
      {"OptionsThemes",
       {Side::Left, "OPT_THEMES", "PAGE_HELP", "GlyphPalette", "Teal"},
       {30, 420, 362, 50},
       130,
       60,
       2,
       {{"THEMES_THEME", "Stagelight"}, {"THEMES_SKIN", "THEMES_DUSK"}, {"THEMES_COLOR", "THEMES_BLUE"}},
       {408, 482, 176, 50},
       {{"StaticSwatch1", "Photo", {40, 96, 220, 150}, "P1Dark", "Colorized"},
        {"StaticSwatch2", "Photo", {290, 96, 220, 150}, "P3Dark", "Colorized"},
        {"StaticSwatch3", "Photo", {540, 96, 220, 150}, "P5Dark", "Colorized"},
        {"StaticSwatch4", "Row", {40, 340, 720, 56}, "White"},
        {"StaticSwatch5", "Track", {40, 262, 720, 60}, "White"},
        {"StaticSwatch6", "Pill", {60, 272, 120, 40}, "P1Light", "Colorized"},
        {"StaticSwatch7", "Pill", {200, 272, 120, 40}, "P2Light", "Colorized"},
        {"StaticSwatch8", "Pill", {340, 272, 120, 40}, "P3Light", "Colorized"},
        {"StaticSwatch9", "Pill", {480, 272, 120, 40}, "P4Light", "Colorized"}},
       {{"TextAbout", 400, 340 + middleOf(56, 0, 9), 0, 9, 1, "Gold", "THEMES_ABOUT"}}},
      {"OptionsRecord",
       {Side::Right, "OPT_RECORD", "PAGE_HELP", "GlyphMic", "Rose"},
       {300, 100, 470, 52},
       200,
       64,
       1,
       {{"RECORD_CARD", "RECORD_CARD_1"},
        {"RECORD_INPUT", "RECORD_MIC"},
        {"RECORD_LEFT", "PLAYER_1"},
        {"RECORD_RIGHT", "PLAYER_2"}},
       {440, 490, 158, 50},
       {{"StaticMic1", "PanelTall", {30, 92, 250, 440}, "White"},
        {"StaticMic2", "Record", {65, 120, 180, 180}, "Rose", "Colorized"},
        {"StaticMic3", "GlyphMic", {115, 320, 80, 80}, "White", "Font Black"},
        {"StaticMic4", "Track", {56, 470, 198, 24}, "White"},
        {"StaticMic5", "Level", {62, 475, 130, 14}, "Good", "Colorized"},
        {"StaticMeter", "Equalizer", {330, 370, 400, 100}, "White"}},
       {{"TextInput", 155, 420, 0, 9, 1, "Body", "RECORD_LEVEL"}}},
      {"OptionsAdvanced",
       {Side::Middle, "OPT_ADVANCED", "PAGE_HELP", "GlyphTools", "Bad"},
       {20, 110, 372, 56},
       180,
       74,
       2,
       {{"ADV_FADE", "ON"},
        {"ADV_JOY", "OFF"},
        {"ADV_LOAD", "ON"},
        {"ADV_EFFECT", "ON"},
        {"ADV_BONUS", "ON"},
        {"ADV_ASK", "OFF"},
        {"ADV_START", "OFF"},
        {"ADV_TOP", "ON"}},
       {224, 470, 170, 54},
       {{"StaticStrip", "Row", {60, 410, 680, 46}, "White"},
        {"StaticTools", "GlyphTools", {730, 8, 48, 48}, "Gold", "Font Black"}},
       {{"TextWarning", 400, 410 + middleOf(46, 0, 9), 0, 9, 1, "Bad", "ADV_WARNING"}}},
  };
  std::vector<Screen> screens;
  for (const Page& page : pages) screens.push_back(pageScreen(page));
  return screens;
}

}  // namespace sample
