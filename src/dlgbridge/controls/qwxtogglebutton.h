#pragma once

#include <dlgbridge/core/qwxcontrol.h>

namespace dbr {

// A control of several states, chosen by index.
class DLGBRIDGE_EXPORT qwxToggleButton : public qwxControl
{
public:
    qwxToggleButton(const OdString& name, qwxWindow& parent);

    static QString typeId();
    QString typeName() const override;

    void SetActiveChoice(int index);
    int GetActiveChoice() const;
};

} // namespace dbr
