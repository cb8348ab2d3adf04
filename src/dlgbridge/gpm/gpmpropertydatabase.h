#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmtreedata.h>

#include <oda/OdString.h>
#include <tdx/PropertyValue.h>

#include <memory>
#include <utility>

namespace oa {
class Property;
}

namespace dbr {

// The item of one property. It borrows the property, which must outlive it,
// and reads it afresh whenever asked.
class DLGBRIDGE_EXPORT GPMPropertyDataBase : public GPMTreeData
{
    DBR_GPM_DECLARE_RX_MEMBERS(GPMPropertyDataBase)

public:
    ~GPMPropertyDataBase() override;

    QString label() const override;
    QString description() const override;
    bool isReadOnly() const override;
    const ut::UUID& GUID() const override;
    AvSmartPtr<const OdRxObject> getAttribute(const OdRxClass* cls,
                                              std::optional<const OdRxObject*> object) const override;

    // The value as the property's type writes it; empty when it can't be read.
    OdString getStringValue() const;

protected:
    explicit GPMPropertyDataBase(const oa::Property& property);

    const oa::Property& property() const;

    // The text shown instead of the value ("*Varies*", "*NoValue*"), or an
    // empty text, with the value read; both empty when it can't be read.
    std::pair<QString, tdx::PropertyValue> getStringOrValue() const;

    // Reads the value; false when it can't be read, with the message about it
    // if logFailure is set.
    bool readValue(tdx::PropertyValue& value, bool logFailure) const;
    // The value if it is of that kind with neither no value nor varies;
    // otherwise the message about the typed value, and false.
    bool checkTyped(const tdx::PropertyValue& value, std::uint32_t kind) const;
    void logTypedFailure() const;
    // Writes the value between updateStarted and updateFinished; the result of the write.
    bool writeValue(const tdx::PropertyValue& value);
    // The two halves of writeValue, for a setter that works out its value only
    // once the update has started. finishWrite must follow startWrite.
    void startWrite();
    bool finishWrite(const tdx::PropertyValue& value);
    // Writes the no-value or the varies value for the texts that stand for
    // them (an empty text is no value); false for any other text, which is
    // left to the caller to parse.
    bool writeSpecialText(const QString& text, const tdx::PropertyValue& noValue, const tdx::PropertyValue& varies);
    // Writes the value chosen at index of a list and takes index as the
    // current one when that worked; nothing without a value. True when the
    // write ended a varying state, which the caller announces.
    bool writeChoice(int& currentIndex, int index, const std::optional<tdx::PropertyValue>& value);
    // Whether the property reports a varying selection now.
    bool readVaries() const;

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

// The translated texts shown instead of a value.
DLGBRIDGE_EXPORT QString gpmVariesText();
DLGBRIDGE_EXPORT QString gpmNoValueText();

} // namespace dbr
