#include "SysVars.h"

namespace oa {

namespace {
// The application's variables are process-wide, as in the application.
OdDb::LineWeight lwDefault = OdDb::kLnWt025;
} // namespace

OdDb::LineWeight SysVars::getLWDEFAULT()
{
    return lwDefault;
}

void SysVars::setLWDEFAULT(OdDb::LineWeight weight)
{
    lwDefault = weight;
}

} // namespace oa
