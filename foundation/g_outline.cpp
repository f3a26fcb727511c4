#include "foundation/g_outline.h"

namespace QOR {

CQorVertexArray g_outline(int type, const CQorVector3d& size, const CQorArrayTempl<double>& parm) {
    (void)type;
    (void)size;
    (void)parm;
    return CQorVertexArray();
}

} // namespace QOR
