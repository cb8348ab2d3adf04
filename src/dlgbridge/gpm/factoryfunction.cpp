#include "factoryfunction.h"

#include "gpmtreedata.h"
#include "rxmembers_p.h"

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(FactoryFunction, OdRxObject, "FactoryFunction")

FactoryFunction::FactoryFunction(Function function)
    : m_function(std::move(function))
{
}

FactoryFunction::~FactoryFunction() = default;

AvSmartPtr<GPMTreeData> FactoryFunction::create(const oa::Property& property) const
{
    return m_function(property);
}

} // namespace dbr
