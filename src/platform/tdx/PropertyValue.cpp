#include "PropertyValue.h"

#include <cstring>
#include <utility>

namespace tdx {

namespace {

std::uint64_t bitsOf(double value)
{
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

PropertyValue::PropertyValue()
    : PropertyValue(kEmpty, 0, kNoValue)
{}

PropertyValue::PropertyValue(std::uint32_t kind, std::uint64_t payload, std::uint32_t flags)
    : m_kind(kind)
    , m_payload(payload)
    , m_flags(flags)
{}

PropertyValue::PropertyValue(bool value)
    : PropertyValue(kBoolean, value ? 1 : 0, kBooleanBits)
{}

PropertyValue::PropertyValue(double value)
    : PropertyValue(kReal, bitsOf(value), 0)
{}

PropertyValue::PropertyValue(const OdString& value)
    : PropertyValue(kString, 0, 0)
{
    m_text = value;
}

PropertyValue::PropertyValue(const OdDbObjectId& value)
    : PropertyValue(kObjectId, value.handle(), 0)
{
    m_database = value.database();
}

PropertyValue PropertyValue::fromInteger(std::int64_t value)
{
    return PropertyValue(kInteger, std::uint64_t(value), kIntegerBits);
}

double PropertyValue::toReal() const
{
    double value;
    std::memcpy(&value, &m_payload, sizeof value);
    return value;
}

bool PropertyValue::get(OdString& text) const
{
    if (m_kind != kString || (m_flags & (kNoValue | kVaries)))
        return false;
    text = m_text;
    return true;
}

void PropertyValue::setNoValue()
{
    m_payload = 0;
    m_text = OdString();
    m_database = nullptr;
    m_flags = (m_flags & ~std::uint32_t(kVaries)) | kNoValue;
}

void PropertyValue::setVaries()
{
    m_flags |= kVaries;
}

void PropertyValue::swap(PropertyValue& other) noexcept
{
    std::swap(m_kind, other.m_kind);
    std::swap(m_payload, other.m_payload);
    std::swap(m_flags, other.m_flags);
    std::swap(m_text, other.m_text);
    std::swap(m_database, other.m_database);
}

bool operator==(const PropertyValue& a, const PropertyValue& b)
{
    return a.m_kind == b.m_kind && a.m_payload == b.m_payload && a.m_flags == b.m_flags && a.m_text == b.m_text &&
           a.m_database == b.m_database;
}

namespace Props {

bool getValue(const PropertyValue& value, OdCmColor& color)
{
    if (value.kind() != PropertyValue::kColor || (value.flags() & (PropertyValue::kNoValue | PropertyValue::kVaries)))
        return false;
    color.setColor(std::uint32_t(value.payload()));
    return true;
}

void setValue(PropertyValue& value, const OdCmColor& color)
{
    PropertyValue(PropertyValue::kColor, color.color(), 0).swap(value);
}

} // namespace Props

} // namespace tdx
