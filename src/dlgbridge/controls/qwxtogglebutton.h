#pragma once

#include <dlgbridge/core/qwxcontrol.h>

namespace dbr {

// A control of several states, chosen by index.
class DLGBRIDGE_EXPORT qwxToggleButton : public qwxControl
{
public:
    qwxToggleButton(const OdString& name, qwxWindow& parent);

    DBR_WRAPPER_TYPE(qwxToggleButton)

    void SetActiveChoice(int index);
    int GetActiveChoice() const;
};

} // namespace dbr
