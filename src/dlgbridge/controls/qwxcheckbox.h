#pragma once

#include <dlgbridge/core/qwxcontrol.h>

namespace dbr {

// A check box; its state is the item's "checked".
class DLGBRIDGE_EXPORT qwxCheckBox : public qwxControl
{
public:
    qwxCheckBox(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxCheckBox)

    void SetValue(bool checked);
    bool GetValue() const;
    bool IsChecked() const;
};

} // namespace dbr
