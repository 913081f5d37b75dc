#include <stdexcept>

#include "themes/themes.h"

namespace sample {

namespace {

struct Words {
  const char* key;
  const char16_t* english;
  const char16_t* german;  ///< null where the language lacks them
};

constexpr Words AllWords[] = {
    {"LOADING", u"Loading…", u"Lädt …"},
    {"LOADING_TIP", u"Warm up your voice while you wait", u"Sing dich ein, während du wartest"},
    {"MAIN", u"Cantorama", u"Cantorama"},
    {"MAIN_HELP", u"Arrows: choose   Enter: open   Esc: leave", u"Pfeile: wählen   Enter: öffnen   Esc: beenden"},
    {"MAIN_MOTTO", u"Sing it out loud", u"Sing es laut heraus"},
    {"SOLO", u"Sing", u"Singen"},
    {"SOLO_HELP", u"Fast and simple: choose and sing", u"Schnell und einfach: wählen, singen"},
    {"PARTY", u"Party", u"Party"},
    {"PARTY_HELP", u"Teams against each other", u"Mannschaften gegeneinander"},
    {"STAT", u"Statistics", u"Statistik"},
    {"STAT_HELP", u"Who sang what, and how well", u"Wer was sang, und wie gut"},
    {"OPTIONS", u"Options", u"Optionen"},
    {"OPTIONS_HELP", u"Sound, picture, microphones", u"Ton, Bild, Mikrofone"},
    {"THEMES", u"Themes", u"Gestaltung"},
    {"THEMES_HELP", u"Dress the stage anew", u"Die Bühne neu einkleiden"},
    {"HISTORY", u"History", u"Rückblick"},
    {"HISTORY_HELP", u"The songs of the last evenings", u"Die Lieder der letzten Abende"},
    {"EDITOR", u"Editor", u"Editor"},
    {"EDITOR_HELP", u"Write songs of your own", u"Eigene Lieder schreiben"},
    {"TOOLS", u"Tools", u"Werkzeuge"},
    {"EXIT", u"Exit", u"Beenden"},
    {"BACK", u"Back", u"Zurück"},
    {"SAVE", u"Save", u"Speichern"},
    {"AGAIN", u"Once more", u"Noch einmal"},
    {"CONTINUE", u"Continue", u"Weiter"},
    {"NEXT", u"Next", u"Vorwärts"},
    {"PREVIOUS", u"Previous", u"Rückwärts"},
    {"REVERSE", u"Reverse", u"Umkehren"},
    {"YES", u"Yes", u"Ja"},
    {"NO", u"No", u"Nein"},
    {"OKAY", u"All right", u"In Ordnung"},
    {"ON", u"On", u"An"},
    {"OFF", u"Off", u"Aus"},
    {"MENU", u"Menu", u"Menü"},
    {"SING", u"Sing", u"Singen"},
    {"LEVEL", u"Difficulty", u"Schwierigkeit"},
    {"LEVEL_HELP", u"The harder, the finer the ear", u"Je schwerer, desto feiner das Gehör"},
    {"LEVEL_CHOSEN", u"Chosen last time: Medium", u"Zuletzt gewählt: Mittel"},
    {"EASY", u"Easy", u"Leicht"},
    {"EASY_HELP", u"Close is fine", u"Ungefähr genügt"},
    {"MEDIUM", u"Medium", u"Mittel"},
    {"MEDIUM_HELP", u"Mind the tune", u"Ton halten"},
    {"HARD", u"Hard", u"Schwer"},
    {"HARD_HELP", u"Every note counts", u"Jede Note zählt"},
    {"NAME", u"Who sings?", u"Wer singt?"},
    {"NAME_ASK", u"Type a name and press Enter", u"Namen tippen und Enter drücken"},
    {"NAME_HELP", u"Enter: go on   Esc: back", u"Enter: weiter   Esc: zurück"},
    {"NAME_TYPED", u"Amelie_", u"Jörg_"},
    {"PLAYER_1", u"Amelie", u"Jörg"},
    {"PLAYER_2", u"Bruno", u"Käthe"},
    {"PLAYER_3", u"Carla", u"Lütz"},
    {"PLAYER_4", u"Dario", u"Märta"},
    {"PLAYER_5", u"Edda", u"Nöle"},
    {"PLAYER_6", u"Falk", u"Özlem"},
    {"SINGER", u"Singer", u"Sänger"},
    {"POINTS", u"Points", u"Punkte"},
    {"SINGER_1", u"Amelie", u"Jörg"},
    {"SINGER_2", u"Bruno", u"Käthe"},
    {"SINGER_3", u"Carla", u"Lütz"},
    {"SINGER_4", u"Dario", u"Märta"},
    {"SINGER_5", u"Edda", u"Nöle"},
    {"SINGER_6", u"Falk", u"Özlem"},
    {"SINGER_7", u"Greta", u"Präger"},
    {"SINGER_8", u"Henrik", u"Rüdiger"},
    {"SINGER_9", u"Ida", u"Süri"},
    {"SINGER_10", u"Jonas", u"Tönnies"},
    {"SINGER_11", u"Klara", u"Ülkü"},
    {"SINGER_12", u"Leo", u"Voß"},
    {"TOP5", u"The best five", u"Die besten fünf"},
    {"TOP5_HELP", u"Enter: go on", u"Enter: weiter"},
    {"STAT_OVERVIEW", u"Overview", u"Übersicht"},
    {"STAT_SONGS", u"214 songs, 37 duets", u"214 Lieder, 37 Duette"},
    {"STAT_SUNG", u"1 086 times sung", u"1 086-mal gesungen"},
    {"STAT_SINCE", u"Counted since spring", u"Gezählt seit Frühling"},
    {"STAT_SCORES", u"Highest scores", u"Höchste Punkte"},
    {"STAT_SCORES_HELP", u"The best evenings of all", u"Die größten Abende"},
    {"STAT_SINGERS", u"Best singers", u"Beste Sänger"},
    {"STAT_SINGERS_HELP", u"By their average", u"Nach Durchschnitt"},
    {"STAT_ARTISTS", u"Favourites", u"Lieblinge"},
    {"STAT_ARTISTS_HELP", u"Most often chosen", u"Am häufigsten gewählt"},
    {"STAT_DETAIL", u"Details", u"Einzelheiten"},
    {"STAT_PAGE", u"Page 1 of 4", u"Seite 1 von 4"},
    {"STAT_BEST", u"Best", u"Höchste"},
    {"SONG", u"Choose a song", u"Lied wählen"},
    {"SONG_HELP", u"Arrows: turn   Enter: sing   M: menu", u"Pfeile: blättern   Enter: singen   M: Menü"},
    {"SONG_TITLE_1", u"Sunday Tram", u"Straßenbahn"},
    {"SONG_TITLE_2", u"Copper Kettle", u"Kupferkessel"},
    {"SONG_TITLE_3", u"Paper Lanterns", u"Süße Laternen"},
    {"SONG_TITLE_4", u"Harbour at Four", u"Hafen um vier"},
    {"SONG_TITLE_5", u"Left My Umbrella", u"Mein Regenschirm"},
    {"SONG_TITLE_6", u"Slow Geese", u"Träge Gänse"},
    {"SONG_ARTIST", u"The Attic Choir", u"Der Dachbodenchor"},
    {"SONG_CATEGORY", u"Folk", u"Volkslied"},
    {"SONG_NUMBER", u"3 of 214", u"3 von 214"},
    {"SONG_BEST", u"Your best so far", u"Bisher am besten"},
    {"SORTING", u"Sorting", u"Ordnung"},
    {"SORTING_VALUE", u"Title", u"Titel"},
    {"TEAM_1", u"Larks", u"Lerchen"},
    {"TEAM_2", u"Owls", u"Käuze"},
    {"TEAM_3", u"Finches", u"Grünfinken"},
    {"MENU_TITLE", u"Song menu", u"Liedmenü"},
    {"MENU_PLAYERS", u"Change players", u"Sänger ändern"},
    {"MENU_REFRESH", u"Read songs anew", u"Lieder neu lesen"},
    {"MENU_CHOICE", u"Category", u"Kategorie"},
    {"JUMP_TITLE", u"Jump to a song", u"Zu einem Lied"},
    {"JUMP_TYPE", u"Search in", u"Suche in"},
    {"JUMP_VALUE", u"Titles", u"Titeln"},
    {"JUMP_TYPED", u"lant_", u"süß_"},
    {"JUMP_FOUND", u"1 song found", u"1 Lied gefunden"},
    {"JUMP_GO", u"Jump", u"Los"},
    {"LYRICS_NOW", u"Lanterns in the rain", u"Laternen im Regen grüßen"},
    {"LYRICS_NEXT", u"sway above the water", u"über dem stillen Fluß"},
    {"SCORE", u"Score", u"Ergebnis"},
    {"SCORE_HELP", u"Enter: go on", u"Enter: weiter"},
    {"SCORE_NOTES", u"Notes", u"Noten"},
    {"SCORE_LINES", u"Line bonus", u"Zeilen"},
    {"SCORE_GOLD", u"Golden notes", u"Goldnoten"},
    {"SCORE_TOTAL", u"Total", u"Summe"},
    {"RATING_1", u"Superb", u"Großartig"},
    {"RATING_2", u"Bright", u"Schön"},
    {"RATING_3", u"Promising", u"Ordentlich"},
    {"OPTIONS_CHOOSE", u"Choose a page to set up", u"Seite zum Einrichten wählen"},
    {"OPT_GAME", u"Game", u"Spiel"},
    {"OPT_GRAPHICS", u"Graphics", u"Grafik"},
    {"OPT_SOUND", u"Sound", u"Klang"},
    {"OPT_LYRICS", u"Lyrics", u"Liedtext"},
    {"OPT_THEMES", u"Themes", u"Gestaltung"},
    {"OPT_RECORD", u"Record", u"Aufnahme"},
    {"OPT_ADVANCED", u"Advanced", u"Erweitert"},
    {"PAGE_HELP", u"Up, down: row   Left, right: change", u"Auf, ab: Zeile   Links, rechts: ändern"},
    {"GAME_PLAYERS", u"Players", u"Mitspieler"},
    {"GAME_DIFFICULTY", u"Difficulty", u"Schwierigkeit"},
    {"GAME_LANGUAGE", u"Language", u"Sprache"},
    {"LANGUAGE", u"English", u"Deutsch"},
    {"GAME_TABS", u"Folders as tabs", u"Ordner als Reiter"},
    {"GAME_SORTING", u"Sorting", u"Ordnung"},
    {"GAME_DEBUG", u"Report faults", u"Fehler melden"},
    {"GRAPH_FULL", u"Full screen", u"Vollbild"},
    {"GRAPH_SIZE", u"Size", u"Größe"},
    {"GRAPH_DEPTH", u"Colours", u"Farben"},
    {"GRAPH_BITS", u"32 bits", u"32 Bit"},
    {"GRAPH_WAVES", u"Oscilloscope", u"Wellen"},
    {"GRAPH_VIDEO", u"Films", u"Filme"},
    {"GRAPH_PREVIEW", u"Preview", u"Vorschau"},
    {"SOUND_VOLUME", u"Volume", u"Lautstärke"},
    {"SOUND_CLICK", u"Clicks", u"Klicken"},
    {"SOUND_BOOST", u"Microphone", u"Mikrofon"},
    {"SOUND_LIMIT", u"Threshold", u"Schwelle"},
    {"SOUND_PREVIEW", u"Preview", u"Anspielen"},
    {"SOUND_BEAT", u"Beat", u"Taktschlag"},
    {"LYRICS_FONT", u"Typeface", u"Schrift"},
    {"LYRICS_BOLD", u"Bold", u"Fett"},
    {"LYRICS_EFFECT", u"Effect", u"Effekt"},
    {"LYRICS_ZOOM", u"Zoom", u"Vergrößern"},
    {"LYRICS_SOLMIZATION", u"Note letters", u"Notennamen"},
    {"THEMES_THEME", u"Theme", u"Thema"},
    {"THEMES_SKIN", u"Skin", u"Kleid"},
    {"THEMES_COLOR", u"Colour", u"Farbe"},
    {"THEMES_DUSK", u"Dusk", u"Dämmerung"},
    {"THEMES_BLUE", u"Blue", u"Blau"},
    {"THEMES_ABOUT", u"One picture in the colours of three players", u"Ein Bild in den Farben dreier Sänger"},
    {"RECORD_CARD", u"Sound card", u"Soundkarte"},
    {"RECORD_CARD_1", u"Onboard", u"Eingebaut"},
    {"RECORD_INPUT", u"Input", u"Eingang"},
    {"RECORD_MIC", u"Microphone", u"Mikrofon"},
    {"RECORD_LEFT", u"Left channel", u"Linker Kanal"},
    {"RECORD_RIGHT", u"Right channel", u"Rechter Kanal"},
    {"RECORD_LEVEL", u"Input level", u"Eingangspegel"},
    {"ADV_FADE", u"Fade screens", u"Überblenden"},
    {"ADV_JOY", u"Joypad", u"Joypad"},
    {"ADV_LOAD", u"Load films", u"Filme laden"},
    {"ADV_EFFECT", u"Sparkles", u"Glitzern"},
    {"ADV_BONUS", u"Line bonus", u"Zeilenbonus"},
    {"ADV_ASK", u"Ask to quit", u"Rückfrage"},
    {"ADV_START", u"Intro", u"Vorspann"},
    {"ADV_TOP", u"Best five", u"Beste fünf"},
    {"ADV_WARNING", u"Some changes need a restart – save first", u"Manches gilt erst nach Neustart – erst speichern"},
    {"ROUND", u"Next round", u"Nächste Runde"},
    {"ROUND_NUMBER", u"Round 3", u"Runde 3"},
    {"ROUND_NEXT", u"They sing next", u"Sie sind dran"},
    {"PARTY_SCORE", u"Standings", u"Zwischenstand"},
    {"PARTY_LEADS", u"The Larks lead", u"Die Lerchen führen"},
    {"PARTY_WIN", u"Winners", u"Siegerehrung"},
    {"PARTY_CHEER", u"Well sung!", u"Schön gesungen!"},
    {"PARTY_OPTIONS", u"Party options", u"Party einrichten"},
    {"PARTY_ABOUT", u"Each round is one song", u"Jede Runde ist ein Lied"},
    {"PARTY_LEVEL", u"Difficulty", u"Schwierigkeit"},
    {"PARTY_TEAMS", u"Teams", u"Mannschaften"},
    {"PARTY_MEMBERS", u"Singers in a team", u"Sänger je Team"},
    {"PARTY_ROUNDS", u"Rounds", u"Runden"},
    {"PARTY_JOKERS", u"Jokers", u"Joker"},
    {"PARTY_PLAYERS", u"Who is in which team", u"Wer singt für wen"},
    {"PARTY_WHO", u"Type over a name to change it", u"Zum Ändern Namen überschreiben"},
    {"CHECK_TITLE", u"A question", u"Eine Frage"},
    {"CHECK_MESSAGE", u"Leave the song now?", u"Das Lied jetzt verlassen?"},
    {"ERROR_TITLE", u"That went wrong", u"Das ging schief"},
    {"ERROR_MESSAGE", u"No microphone was found", u"Kein Mikrofon gefunden"},
    {"ERROR_HELP", u"Plug one in and try again", u"Bitte anschließen und wiederholen"},
    {"BENCH_TITLE", u"Workbench", u"Werkbank"},
    {"BENCH_TWICE", u"the first of two", u"das erste von zweien"},
    {"BENCH_TWICE", u"the second of two", u"das zweite von zweien"},
    {"BENCH_QUOTED", u"\"  kept blanks  \"", u"\"  Anführung  \""},
    {"BENCH_EMPTY", u"", u""},
    {"BENCH_ENGLISH", u"known to one only", nullptr},
    {"BENCH_EQUAL", u"one = two = three", u"eins = zwei = drei"},
};

struct Letter {
  char16_t unicode;
  char ansi;
};

/// Letters of the code page that have another place in it than in Unicode.
constexpr Letter Letters[] = {{u'…', '\x85'}, {u'–', '\x96'}};

std::string toAnsi(const char16_t* text) {
  std::string bytes;
  for (; *text != 0; ++text) {
    char byte = static_cast<char>(*text);
    bool known = *text < 0x80 || (*text >= 0xa0 && *text <= 0xff);
    for (const Letter& letter : Letters) {
      if (letter.unicode != *text) continue;
      byte = letter.ansi;
      known = true;
    }
    if (!known) throw std::runtime_error("a letter that the code page lacks");
    bytes += byte;
  }
  return bytes;
}

void writeLanguage(const Output& output, const std::string& name, const char16_t* Words::*column) {
  std::string text = "[Text]\n";
  for (const Words& words : AllWords) {
    if (words.*column) text += std::string(words.key) + "=" + toAnsi(words.*column) + "\n";
  }
  output.writeLines("Languages/" + name + ".ini", text);
}

}  // namespace

void writeLanguages(const Output& output) {
  writeLanguage(output, "English", &Words::english);
  writeLanguage(output, "Deutsch", &Words::german);
}

}  // namespace sample
