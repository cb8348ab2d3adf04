#include "factoryfunction.h"

#include "gpmtreedata.h"
#include "rxmembers_p.h"

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(FactoryFunction, OdRxObject, "FactoryFunction")

struct FactoryFunction::Private
{
    Function function;
};

FactoryFunction::FactoryFunction(Function function)
    : d(new Private{std::move(function)})
{}

FactoryFunction::~FactoryFunction() = default;

AvSmartPtr<GPMTreeData> FactoryFunction::create(const oa::Property& property) const
{
    return d->function(property);
}

} // namespace dbr
