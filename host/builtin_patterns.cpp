// The hatch patterns this library ships, in .pat text. Sizes are drawing units at
// hatch scale 1 (the ANSI family keeps its customary 1/8 unit row distance), angles
// in degrees. A row's shift and distance are measured in the family's own frame:
// along its lines and across them.
#include "host/hatch_pattern_table.h"

namespace QOR {

const char* builtinPatternText() {
    return R"PAT(;; Qor hatch patterns
;;
;; ANSI31 to ANSI38: the section line family of the ANSI drafting standard,
;; 45 degree lines 1/8 apart and their variants.
*ANSI31, ANSI: iron, brick, masonry (45 degree lines)
45, 0,0, 0,.125
*ANSI32, ANSI: steel (pairs of 45 degree lines)
45, 0,0, 0,.375
45, .176776695,0, 0,.375
*ANSI33, ANSI: bronze, brass, copper (solid and dashed 45 degree lines)
45, 0,0, 0,.25
45, .176776695,0, 0,.25, .125,-.0625
*ANSI34, ANSI: plastic, rubber (groups of four 45 degree lines)
45, 0,0, 0,.75
45, .176776695,0, 0,.75
45, .353553391,0, 0,.75
45, .530330086,0, 0,.75
*ANSI35, ANSI: fire brick, refractory (solid, and dash-dot 45 degree lines)
45, 0,0, 0,.25
45, .176776695,0, 0,.25, .3125,-.0625,0,-.0625
*ANSI36, ANSI: marble, slate, glass (staggered dash-dot 45 degree lines)
45, 0,0, .21875,.125, .3125,-.0625,0,-.0625
*ANSI37, ANSI: lead, zinc, insulation (45 degree cross hatch)
45, 0,0, 0,.125
135, 0,0, 0,.125
*ANSI38, ANSI: aluminium (45 degree lines crossed by dashes)
45, 0,0, 0,.125
135, 0,0, .25,.125, .3125,-.1875
;;
;; Dense fills that print as nearly solid areas.
*DENSE, nearly solid: horizontal lines 1/64 apart
0, 0,0, 0,.015625
*DENSE45, nearly solid: 45 degree lines 1/64 apart
45, 0,0, 0,.015625
*DENSE_CROSS, nearly solid: crossing lines 1/32 apart
0, 0,0, 0,.03125
90, 0,0, 0,.03125
;;
;; Brick in running bond: courses 1/4 high, bricks 1/2 long, joints staggered.
*BRICK, brick courses in running bond
0, 0,0, 0,.25
90, 0,0, .25,.25, .25,-.25
;;
;; Dots on a staggered grid: a zero dash is a dot.
*DOTS, dots on a staggered grid
0, 0,0, .03125,.0625, 0,-.0625
;;
;; Small crosses: horizontal dashes 1/8 long with vertical dashes through their
;; middles, on a grid of 1/2 by 1/4 with alternate rows offset.
*CROSS, small crosses
0, 0,0, .25,.25, .125,-.375
90, .0625,-.0625, .25,.25, .125,-.375
;;
;; Gravel: short strokes in five directions with unrelated periods, so the
;; picture looks irregular.
*GRAVEL, gravel and crushed stone
0, 0,0, .3,.22, .07,-.53
72, .05,.02, .2,.31, .05,-.57
135, .15,.1, .27,.19, .06,-.45
210, .3,.05, .13,.29, .08,-.51
300, .22,.16, .33,.23, .04,-.49
;;
;; Soft insulation: a zigzag between boundary lines 1 apart, one tooth per unit.
;; The rising stroke runs from (0,0) to (.5,1), the falling one from (1,0) to (.5,1):
;; 63.43 degrees and its mirror, each 1.118034 long, repeating every 2.236068.
*INSULATION, soft insulation (zigzag between boundary lines)
0, 0,0, 0,1
63.434948823, 0,0, .894427191,.447213595, 1.118033989,-1.118033989
116.565051177, 1,0, 1.341640786,.447213595, 1.118033989,-1.118033989
)PAT";
}

} // namespace QOR
