#include "gpmcategoryitem.h"

#include "rxmembers_p.h"

#include <oa/Property.h>
#include <qut/qtconversions.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMCategoryItem, GPMTreeData, "GPMCategoryItem")

struct GPMCategoryItem::Private
{
    const oa::PropertyCategory& category;
};

GPMCategoryItem::GPMCategoryItem(const oa::PropertyCategory& category)
    : d(new Private{category})
{}

GPMCategoryItem::~GPMCategoryItem() = default;

QString GPMCategoryItem::type() const
{
    return QStringLiteral("category");
}

QString GPMCategoryItem::label() const
{
    return qut::toQt(d->category.localName());
}

bool GPMCategoryItem::isReadOnly() const
{
    return true;
}

const ut::UUID& GPMCategoryItem::GUID() const
{
    return d->category.GUID();
}

AvSmartPtr<const OdRxObject> GPMCategoryItem::getAttribute(const OdRxClass*, std::optional<const OdRxObject*>) const
{
    return AvSmartPtr<const OdRxObject>();
}

unsigned int GPMCategoryItem::sortWeight() const
{
    return d->category.sortWeight();
}

} // namespace dbr
