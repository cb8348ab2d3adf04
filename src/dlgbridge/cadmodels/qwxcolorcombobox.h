#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <oda/OdCmColor.h>

#include <memory>

namespace dbr {

class ColorModel;
class qwxColorComboBoxPrivate;

// A combo of CAD colours. All colour combos of a dialog show the dialog's one
// ColorModel; each keeps its own selection in its item's "currentIndex".
class DLGBRIDGE_EXPORT qwxColorComboBox : public qwxControl
{
public:
    qwxColorComboBox(const OdString& name, qwxWindow& parent);
    ~qwxColorComboBox() override;

    DBR_WRAPPER_TYPE(qwxColorComboBox)

    // The packed value of an OdCmColor.
    void setColor(unsigned long value);
    // Selects the colour's row in the item, adding the row when the colour is new.
    void setColor(const OdCmColor& color);
    // The colour of the item's row; a default colour without a model. The
    // reference is rewritten by the next call.
    OdCmColor& color() const;

    // Null when the host gives no models.
    ColorModel* model() const;

private:
    std::unique_ptr<qwxColorComboBoxPrivate> const d;
};

} // namespace dbr
