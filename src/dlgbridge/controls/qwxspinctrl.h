#pragma once

#include <dlgbridge/core/qwxcontrol.h>

namespace dbr {

// A number field with up and down buttons.
class DLGBRIDGE_EXPORT qwxSpinCtrl : public qwxControl
{
public:
    qwxSpinCtrl(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxSpinCtrl)

    int GetValue() const;
    void SetValue(int value);
};

} // namespace dbr
