#include "themes/workbench_theme.h"

namespace sample {

const char* const WorkbenchPictures = R"(; Workbench: what can be wrong in a theme is wrong here
# a comment of the other kind
; bytes that the code page leaves open: )"
                                      "\x81\x8d\x8f\x90\x9d"
                                      R"(

[Theme]
Name="Workbench"
Creator = Odd & Sons = makers of faults

[Colors]
Steel=120 132 148
White=255 255 255
Ink=30 30 36
Rust=190 96 52
Twice=10 200 10
Twice=200 10 10
P1Dark=1 2 3
Short=120 130
Negative=-20 40 60
Beyond=300 20 20
Huge=70000 0 0
Words=red green blue
Spread=10  20  30
Empty=
Quoted="40 120 200"
ColorDark=9 9 9
Equal=1 2 3=4 5 6
 Indented=90 60 30

[Loading]

[LoadingBackground]
Tex=NoSuchKey

[LoadingTextLoading]
X=400
Y=280
Font=1
Size=14
Align=1
Color=Ink
Text=LOADING

[Main]
Wobble=3
Statics=4

[MainBackground]
Tex=BenchBG
Color=Unknown

; the usual objects first
[MainStatic0Plate]
Tex=Plate
X=40
Y=90
W=720
H=180
Color=White
Type=Plain

[MainStaticNegative]
Tex=Plate
X=-60
Y=-20.5
W=200.5
H=81.5
Color=Steel
Type=COLORIZED

[MainStaticBeyond]
Tex=Plate
X=40000
Y=10
W=100
H=100
Color=White
Type=Plain

[MainStaticTurned]
Tex=Plate
X=300
Y=300
W=-50
H=60
Color=White

[MainStaticNatural]
Tex=Dot
X=620
Y=110
W=-1
H=-1
Color=White

[MainStaticNoSize]
Tex=Dot
X=100
Y=100
Color=White

[MainStaticUnknownColor]
Tex=Dot
X=80
Y=110
W=60
H=60
Color=NoSuchColor

[MainStaticShortColor]
Tex=Dot
X=150
Y=110
W=60
H=60
Color=Short

[MainStaticNoColor]
Tex=Dot
X=220
Y=110
W=60
H=60

[MainStaticMissingKey]
Tex=NoSuchKey
X=290
Y=110
W=60
H=60
Color=White

[MainStaticMissingFile]
Tex=Lost
X=360
Y=110
W=60
H=60
Color=White

[MainStaticNoImage]
Tex=NoImage
X=430
Y=110
W=60
H=60
Color=White

[MainStaticCut]
Tex=Cut
X=500
Y=110
W=60
H=60
Color=White

[MainStaticTwice]
Tex=Dot
X=80
Y=190
W=60
H=60
Color=Twice
Type=Colorized

[MainStaticTwice]
Tex=Dot
X=700
Y=190
W=60
H=60
Color=Rust

[MainStaticEmpty]
Tex=
X=
Y=
W=
H=
Color=
Type=

[MainStaticComments]
;X=5
#Y=6
Tex=Dot
 ;Z=1
 #Z=2
X =160
 Y= 190 
W=60 pixels
H="60"
Color="Quoted"
a line without the sign

Type=Font Black

)";

}  // namespace sample
