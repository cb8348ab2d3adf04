#pragma once

#include <dlgbridge/core/qwxcontrol.h>

namespace dbr {

// A radio button; its state is the item's "checked".
class DLGBRIDGE_EXPORT qwxRadioButton : public qwxControl
{
public:
    qwxRadioButton(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxRadioButton)

    void SetValue(bool checked);
    bool GetValue() const;
};

} // namespace dbr
