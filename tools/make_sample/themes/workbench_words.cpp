#include "themes/workbench_theme.h"

namespace sample {

const char* const WorkbenchWords = R"([MainTextDoubled]
X=80
X=90
Y=290
Font=0
Size=9
size=11
Color=Ink
Text=BENCH_TWICE

[MainTextEqual]
X=80
Y=330
Size=9
Color=Ink
Text=BENCH_EQUAL=NOT_THIS

[MainTextEmpty]
X=80
Y=360
Size=9
Text=

[MainTextFractions]
X=80.5
Y=390.25
Size=9.5
ColR=1.5
ColG=0.25
ColB=-0.5
Text=BENCH_QUOTED

[MainTextNoSize]
X=80
Y=420
Color=Ink
Text=BENCH_TITLE

[MainTextNegativeSize]
X=80
Y=440
Size=-4
Text=BENCH_TITLE

[MainTextFont]
X=400
Y=290
Font=4
Size=9
Align=3
Color=Beyond
Text=BENCH_TITLE

[MainTextFontBeyond]
X=400
Y=330
Font=300
Size=70000
Align=1.5
Color=Words
Text=BENCH_TITLE

[MainTextUntranslated]
X=400
Y=360
Size=word
Font=word
Color=Negative

 [MainTextIndented]
X=400
Y=390
Size=9
Text=BENCH_TITLE

[MainTextTail] ; a tail behind the bracket
X=400
Y=420
Size=9
Text=BENCH_TITLE

[MainButtonCollection]
Tex=Key
X=40
Y=490
W=150
H=50
Color=Rust
DColor=Steel
Type=Colorized
SelectH=70
Texts=1
Visible=False

[MainButtonCollectionText1]
X=75
Y=10
Size=9
Align=1
Color=White
Text=TOOLS

[MainButtonCollectionText2]
X=75
Y=30
Size=9
Align=1
Color=White
Text=BENCH_ENGLISH

[MainButtonHidden]
Tex=Key
X=210
Y=490
W=150
H=50
Color=Rust
DColor=Steel
Visible=0

[MainButtonInk]
Tex=Sign
X=380
Y=490
W=50
H=50
Color=White
INT=2
DColor=Rust
DINT=0.5.5
Type=Font Black

[MainButtonTexts]
Tex=Key
X=450
Y=490
W=150
H=50
Color=Rust
DColor=Steel
Type=colorized
SelectH=30
Texts=40000

[MainButtonTextsText1]
X=75
Y=10
Size=9
Align=1
Color=White
Text=OKAY

[MainButtonUndressed]
Tex=Key
X=610
Y=490
W=150
H=50
Color=Rust
SelectH=99999
Texts=3

[MainButtonUndressedText2]
Y=10
Size=9
Text=NO

[MainButtonUndressedText3]
X=75
Y=10
Size=9
Align=1
Color=Ink
Text=YES

[MainSelectBare]

)";

}  // namespace sample
