#include "themes/workbench_theme.h"

namespace sample {

const char* const WorkbenchScreens = R"([Song]

[SongBackground]
Tex=CutBG

[SongStaticOne]
Tex=Plate
X=100
Y=100
W=600
H=300
Color=White

[SongVIDEOicon]
Tex=Dot
X=120
Y=120
W=64
H=64
Color=White

[SongTextParty]
X=400
Y=140
Size=12
Align=1
Color=Ink
Text=PARTY

[SongTextNonParty]
X=400
Y=180
Size=12
Align=1
Color=Ink
Text=SOLO

[sing]

[songtextafter]
x=400
y=220
size=10
align=1
color=Rust
text=SONG_TITLE_3

[Sing]

[SingBackground]
Tex=GlassBG

[SingStaticLane]
Tex=Plate
X=40
Y=160
W=720
H=120
Color=Steel
Type=Colorized

[SingP1StaticNote]
Tex=Key
X=100
Y=190
W=200
H=40
Color=P1Dark
Type=Colorized

[SingP2RTextScore]
X=700
Y=170
Size=12
Align=2
Color=Ink
Text=4180

[Score]

[ScoreTextName1]
X=400
Y=100
Size=12
Text=PLAYER_1

[ScoreTextTotalSCORE2]
X=400
Y=200
Size=12
Color=Ink
Text=8400

[Options]
Texts=-3

[OptionsBackground]
Tex=NoImage

[OptionsButtonExit]
Tex=Key
X=300
Y=250
W=200
H=60
Color=Rust
DColor=Steel
Type=Font black
INT=0.8
Texts=-1

[Name]

[NameBackground]
Tex=BenchBG

[NameStaticTwiceDrawn]
Tex=Dot
X=360
Y=200
W=80
H=80
Color=White
DColor=Rust
Type=Colorized

[NameTextLost]
X=400
Y=300
Size=12
Text=NAME

[levelbackground]
tex=BenchBG

[level]
x=1
x=2

[LEVELBUTTONEASY]
TEX=Key
X=300
Y=250
W=200
H=60
COLOR=Rust
DCOLOR=Steel
TYPE=COLORIZED
TEXTS=1

[LevelButtonEasyTEXT1]
X=100
Y=12
Size=10
Align=1
Color=White
Text=EASY

[CheckPopup]

[CheckPopupStaticOnly]
Tex=Plate
X=-1
Y=-1
W=300
H=200
Color=White

[ErrorPopup]

[ErrorPopupTextError]
X=32767
Y=-32768
Size=12
Color=Ink
Text=ERROR_MESSAGE

[ErrorPopupButton1]
Tex=Key
X=-32769
Y=300
W=200
H=60
Color=Rust
DColor=Rust)";

}  // namespace sample
