#include "itemroles.h"

#include <Qt>

namespace qut {

int getWantsToBeExpandedRole()
{
    return Qt::UserRole + 0x100;
}

} // namespace qut
