#include "qsortinglistctrl.h"

namespace dbr {

qSortingListCtrl::qSortingListCtrl(const OdString& name, qwxWindow& parent)
    : qwxListCtrl(name, parent)
{
    setQmlProperty("sortingEnabled", true);
}

qSortingListCtrl::~qSortingListCtrl() = default;

} // namespace dbr
