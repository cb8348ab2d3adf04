#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <oda/OdDbObjectId.h>

#include <memory>

namespace dbr {

class LineTypeModel;
class qwxLineTypeComboBoxPrivate;

// A combo of the current drawing's line types. All line type combos of a
// dialog show the dialog's one LineTypeModel, which follows the current
// document; each keeps its own selection in its item's "currentIndex".
class DLGBRIDGE_EXPORT qwxLineTypeComboBox : public qwxControl
{
public:
    qwxLineTypeComboBox(const OdString& name, qwxWindow& parent);
    ~qwxLineTypeComboBox() override;

    DBR_WRAPPER_TYPE(qwxLineTypeComboBox)

    // Selects the line type's row; an id that isn't listed changes nothing.
    void setSelection(const OdDbObjectId& id);
    // The line type of the item's row; null on the special rows and without a model.
    OdDbObjectId getLinetype() const;

    // Null when the host gives no models.
    LineTypeModel* model() const;

private:
    std::unique_ptr<qwxLineTypeComboBoxPrivate> const d;
};

} // namespace dbr
