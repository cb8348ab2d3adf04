#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/rxmembers.h>

#include <tdx/AvRxObject.h>
#include <tdx/AvSmartPtr.h>

#include <functional>
#include <memory>

namespace oa {
class Property;
}

namespace dbr {

class GPMTreeData;

// What a property type offers as its protocol extension: the maker of the item
// that shows one property of that type.
class DLGBRIDGE_EXPORT FactoryFunction : public AvRxObject
{
    DBR_GPM_DECLARE_RX_MEMBERS(FactoryFunction)

public:
    using Function = std::function<AvSmartPtr<GPMTreeData>(const oa::Property&)>;

    explicit FactoryFunction(Function function);
    ~FactoryFunction() override;

    // Throws std::bad_function_call for an empty function.
    AvSmartPtr<GPMTreeData> create(const oa::Property& property) const;

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
