#include "OdError.h"

#include <string>

OdString OdError::description() const
{
    return OdString(("OdError " + std::to_string(int(m_code))).c_str());
}
