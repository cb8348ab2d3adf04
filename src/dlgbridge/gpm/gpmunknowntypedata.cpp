#include "gpmunknowntypedata.h"

#include "rxmembers_p.h"

#include <oa/Property.h>
#include <qut/qtconversions.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMUnknownTypeData, GPMPropertyDataBase, "GPMUnknownTypeData")

GPMUnknownTypeData::GPMUnknownTypeData(const oa::Property& property)
    : GPMPropertyDataBase(property)
{}

GPMUnknownTypeData::~GPMUnknownTypeData() = default;

QString GPMUnknownTypeData::value() const
{
    tdx::PropertyValue value;
    OdString text;
    if (readValue(value, false) && property().type()->valueToString(text, value, nullptr, nullptr))
        return qut::toQt(text);
    return QString();
}

bool GPMUnknownTypeData::useExperimentalUI() const
{
    return false;
}

} // namespace dbr
