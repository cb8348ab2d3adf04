#include "PropertyAttributes.h"

#include <QString>

#include <qut/qtconversions.h>
#include <tdx/AvRxObject.h>

#include <cmath>
#include <memory>

namespace oa {

namespace {

struct ClassDeleter
{
    void operator()(OdRxClass* cls) const { deleteOdRxClass(cls); }
};
using StaticClass = std::unique_ptr<OdRxClass, ClassDeleter>;

} // namespace

#define OA_ATTRIBUTE_CLASS(Class, Parent)                                                                              \
    OdRxClass* Class::desc()                                                                                           \
    {                                                                                                                  \
        static const StaticClass cls(newAvRxClass("oa::" #Class, Parent::desc(), nullptr));                            \
        return cls.get();                                                                                              \
    }                                                                                                                  \
    OdRxClass* Class::isA() const                                                                                      \
    {                                                                                                                  \
        return desc();                                                                                                 \
    }

OA_ATTRIBUTE_CLASS(Attribute, OdRxObject)
OA_ATTRIBUTE_CLASS(ValueAttribute, Attribute)
OA_ATTRIBUTE_CLASS(BooleanValueAttribute, Attribute)
OA_ATTRIBUTE_CLASS(EnumerationAttribute, Attribute)
OA_ATTRIBUTE_CLASS(UnitsAttribute, Attribute)
OA_ATTRIBUTE_CLASS(ReadOnlyAttribute, Attribute)

BooleanValueAttribute::BooleanValueAttribute(const OdString& trueLabel, const OdString& falseLabel)
    : m_trueLabel(trueLabel)
    , m_falseLabel(falseLabel)
{}

EnumerationAttribute::EnumerationAttribute(Values values)
    : m_values(std::move(values))
{}

EnumerationAttribute::const_iterator EnumerationAttribute::value_find(const tdx::PropertyValue& value) const
{
    for (auto it = m_values.cbegin(); it != m_values.cend(); ++it) {
        if (it->second == value)
            return it;
    }
    return m_values.cend();
}

UnitsAttribute::UnitsAttribute(Units units)
    : m_units(std::move(units))
{}

OdString UnitsAttribute::displayName(const_iterator unit) const
{
    return unit == m_units.cend() ? OdString() : unit->first;
}

OdString UnitsAttribute::format(double value, const_iterator unit, bool editable, int maxLength) const
{
    const double factor = unit == m_units.cend() || unit->second == 0 ? 1.0 : unit->second;
    return qut::odFromQt(QString::number(value / factor, 'g', editable ? 12 : 6).left(maxLength));
}

UnitsAttribute::const_iterator UnitsAttribute::bestUnit(double value) const
{
    const double magnitude = std::fabs(value);
    auto best = m_units.cend();
    auto smallest = m_units.cend();
    for (auto it = m_units.cbegin(); it != m_units.cend(); ++it) {
        if (smallest == m_units.cend() || it->second < smallest->second)
            smallest = it;
        if (magnitude >= it->second && (best == m_units.cend() || it->second > best->second))
            best = it;
    }
    return best != m_units.cend() ? best : smallest;
}

} // namespace oa
