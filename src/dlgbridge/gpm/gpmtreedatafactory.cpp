#include "gpmtreedatafactory.h"

#include "attributes_p.h"
#include "avrxobjectimpl.h"
#include "factoryfunction.h"
#include "gpmbooleandata.h"
#include "gpmcategoryitem.h"
#include "gpmcolourdata.h"
#include "gpmenumerationdata.h"
#include "gpmintegerdata.h"
#include "gpmlinetypedata.h"
#include "gpmrealdata.h"
#include "gpmstringdata.h"
#include "gpmunknowntypedata.h"

#include <QAbstractListModel>

#include <oa/Property.h>
#include <oa/PropertyType.h>
#include <tdx/AvRxObject.h>

#include <array>
#include <memory>

namespace dbr {

namespace {

template<typename T>
AvSmartPtr<GPMTreeData> make(const oa::Property& property)
{
    return AvRxObjectImpl<T>::createObject(property);
}

// An integer, real or string property that offers a fixed list of values is a choice.
template<typename T>
AvSmartPtr<GPMTreeData> makeOrEnumeration(const oa::Property& property)
{
    if (auto enumeration = attributeOf<oa::EnumerationAttribute>(property))
        return AvRxObjectImpl<GPMEnumerationData>::createObject(property, std::move(enumeration));
    return make<T>(property);
}

struct Row
{
    oa::PropertyType* (*type)();
    AvSmartPtr<GPMTreeData> (*maker)(const oa::Property&);
};

const std::array<Row, 13>& rows()
{
    static const std::array<Row, 13> table{{
        {&oa::PropType::Angle::getType, &make<GPMRealData>},
        {&oa::PropType::Area::getType, &make<GPMRealData>},
        {&oa::PropType::Boolean::getType, &make<GPMBooleanData>},
        {&oa::PropType::Color::getType, &make<GPMColourData>},
        {&oa::PropType::Distance::getType, &make<GPMRealData>},
        {&oa::PropType::Enumeration::getType, &make<GPMEnumerationData>},
        {&oa::PropType::Integer::getType, &makeOrEnumeration<GPMIntegerData>},
        {&oa::PropType::Length::getType, &make<GPMRealData>},
        {&oa::PropType::Linetype::getType, &make<GPMLineTypeData>},
        {&oa::PropType::Mass::getType, &make<GPMRealData>},
        {&oa::PropType::Real::getType, &makeOrEnumeration<GPMRealData>},
        {&oa::PropType::String::getType, &makeOrEnumeration<GPMStringData>},
        {&oa::PropType::Volume::getType, &make<GPMRealData>},
    }};
    return table;
}

void attach(oa::PropertyType& type, const AvSmartPtr<FactoryFunction>& factory)
{
    if (!type.extensionManager())
        type.setExtensionManager(std::make_unique<AvRxProtocolExtManager>());
    // What comes back is the former factory, released here.
    if (factory)
        type.extensionManager()->addX(FactoryFunction::desc(), factory.get());
    else
        type.extensionManager()->delX(FactoryFunction::desc());
}

} // namespace

void fillGPMTreeDataFactory()
{
    for (const Row& row : rows())
        attach(*row.type(), AvRxObjectImpl<FactoryFunction>::createObject(row.maker));
}

void clearGPMTreeDataFactory()
{
    for (const Row& row : rows()) {
        if (AvRxProtocolExtManager* manager = row.type()->extensionManager())
            manager->delX(FactoryFunction::desc());
    }
}

namespace {

// Registers the runtime classes when the library is loaded, parents first, and
// takes them off when it is unloaded, children first, without throwing. QML
// reads the items' models only once their pointer type is known too.
template<typename... Classes>
struct ClassRegistration
{
    ClassRegistration()
    {
        ((Classes::desc() ? void() : Classes::rxInit()), ...);
        qRegisterMetaType<QAbstractListModel*>();
    }
    ~ClassRegistration() { unregister<Classes...>(); }

    template<typename First, typename... Rest>
    static void unregister()
    {
        if constexpr (sizeof...(Rest) > 0)
            unregister<Rest...>();
        if (First::desc())
            First::rxUninit();
    }
};

const ClassRegistration<FactoryFunction, GPMTreeData, GPMCategoryItem, GPMPropertyDataBase, GPMBooleanData,
                        GPMColourData, GPMEnumerationData, GPMIntegerData, GPMLineTypeData, GPMRealData, GPMStringData,
                        GPMUnknownTypeData>
    registration;

} // namespace

} // namespace dbr
