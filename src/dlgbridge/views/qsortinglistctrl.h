#pragma once

#include <dlgbridge/views/qwxlistctrl.h>

namespace dbr {

// A list whose item sorts its rows for showing; the rows keep their order here.
class DLGBRIDGE_EXPORT qSortingListCtrl : public qwxListCtrl
{
public:
    qSortingListCtrl(const OdString& name, qwxWindow& parent);
    ~qSortingListCtrl() override;

    DBR_WRAPPER_TYPE(qSortingListCtrl)
};

} // namespace dbr
