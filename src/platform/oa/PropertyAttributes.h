#pragma once

#include <oda/OdRxClass.h>
#include <oda/OdString.h>
#include <tdx/PropertyValue.h>
#include <ut/vector_map.h>

#include <vector>

namespace oa {

// Stand-ins for the attributes a property carries: runtime objects, looked up
// by their class. Create them counted, with OdRxObjectImpl<X>::createObject.
class Attribute : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override;
};

using AttributeCollection = std::vector<OdSmartPtr<const Attribute>>;

// Whether a property may be left without a value.
class ValueAttribute : public Attribute
{
public:
    explicit ValueAttribute(bool allowsNoValue)
        : allowsNoValue(allowsNoValue)
    {}
    static OdRxClass* desc();
    OdRxClass* isA() const override;

    unsigned char allowsNoValue;
};

// The words a boolean property shows for its two values.
class BooleanValueAttribute : public Attribute
{
public:
    BooleanValueAttribute(const OdString& trueLabel, const OdString& falseLabel);
    static OdRxClass* desc();
    OdRxClass* isA() const override;

    OdString trueLabel() const { return m_trueLabel; }
    OdString falseLabel() const { return m_falseLabel; }

private:
    OdString m_trueLabel;
    OdString m_falseLabel;
};

// The fixed values a property offers, by label, in the order given.
class EnumerationAttribute : public Attribute
{
public:
    using Values = ut::vector_map<OdString, tdx::PropertyValue>;
    using const_iterator = Values::const_iterator;

    explicit EnumerationAttribute(Values values);
    static OdRxClass* desc();
    OdRxClass* isA() const override;

    const Values& values() const { return m_values; }
    // The entry holding value; values().cend() when none does.
    const_iterator value_find(const tdx::PropertyValue& value) const;

private:
    Values m_values;
};

// The units a number can be shown in, each with the factor that turns a number
// in that unit into the property's own: 1 for the unit the property stores.
class UnitsAttribute : public Attribute
{
public:
    using Units = ut::vector_map<OdString, double>;
    using const_iterator = Units::const_iterator;

    explicit UnitsAttribute(Units units);
    static OdRxClass* desc();
    OdRxClass* isA() const override;

    const Units& units() const { return m_units; }

    virtual OdString displayName(const_iterator unit) const;
    // The bare number in that unit, so that what is shown parses back: with 12
    // significant digits for an editable value, 6 for one only shown, and never
    // longer than maxLength characters.
    virtual OdString format(double value, const_iterator unit, bool editable, int maxLength) const;
    // The largest unit in which the value is at least 1; the smallest for
    // smaller values; cend() without units.
    virtual const_iterator bestUnit(double value) const;

private:
    Units m_units;
};

// A property nobody may write.
class ReadOnlyAttribute : public Attribute
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override;
};

} // namespace oa
