#include "themes/workbench_theme.h"

namespace sample {

const char* const WorkbenchGreySkin = R"([Skin]
Name=Grey "as" it comes
Autor=

[Textures]
; pictures
BenchBG=bench.jpg
CutBG=cut.png
GlassBG=glass.png
Plate=plate.png
Key=key.png
Key=lost_twice.png
Dot=dot.gif
Sign=sign.bmp
Lost=not_on_this_disk.png
NoImage=no_image.png
Cut=cut.png
Empty=
Unused = plate.png
)";

const char* const WorkbenchSpareSkin = R"([Skin]
Name=Spare parts
Autor=Odd & Sons

[textures]
benchbg=glass.png
PLATE="plate.png"
Key=KEY.PNG
Dot=dot.gif
Sign=sign.bmp
)";

}  // namespace sample
