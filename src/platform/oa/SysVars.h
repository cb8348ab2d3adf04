#pragma once

#include <oda/OdDb.h>

namespace oa {

// Stand-in for the application's system variables: only the default line
// weight, LWDEFAULT, in hundredths of a millimetre (25 until set).
class SysVars
{
public:
    static OdDb::LineWeight getLWDEFAULT();
    static void setLWDEFAULT(OdDb::LineWeight weight);
};

} // namespace oa
