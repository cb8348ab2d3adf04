#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmtreedata.h>

#include <memory>

namespace oa {
class PropertyCategory;
}

namespace dbr {

// The heading row of a group of properties. It borrows its category, which
// must outlive it, and nobody edits it.
class DLGBRIDGE_EXPORT GPMCategoryItem : public GPMTreeData
{
    DBR_GPM_DECLARE_RX_MEMBERS(GPMCategoryItem)

public:
    explicit GPMCategoryItem(const oa::PropertyCategory& category);
    ~GPMCategoryItem() override;

    QString type() const override;
    QString label() const override;
    bool isReadOnly() const override;
    const ut::UUID& GUID() const override;
    // A category has no attributes.
    AvSmartPtr<const OdRxObject> getAttribute(const OdRxClass* cls,
                                              std::optional<const OdRxObject*> object) const override;
    unsigned int sortWeight() const override;

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
