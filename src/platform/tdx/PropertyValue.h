#pragma once

#include <oda/OdCmColor.h>
#include <oda/OdDbObjectId.h>
#include <oda/OdString.h>

#include <cstdint>

namespace tdx {

// Stand-in for the property system's value record: a kind, a 64-bit payload
// and a flags word. Flag bit 0 means no value, bit 1 that a selection varies;
// the higher bits are constant for a kind. Strings travel beside the payload,
// and so does the database of an object id, whose handle is the payload.
class PropertyValue
{
public:
    enum Kind : std::uint32_t {
        kEmpty = 0,
        kBoolean = 1,
        kInteger = 2,
        kReal = 3,
        kString = 4,
        kColor = 5,
        kObjectId = 9
    };
    enum Flags : std::uint32_t { kNoValue = 1, kVaries = 2, kBooleanBits = 24, kIntegerBits = 48 };

    // No value of no kind.
    PropertyValue();
    PropertyValue(std::uint32_t kind, std::uint64_t payload, std::uint32_t flags);
    explicit PropertyValue(bool value);
    explicit PropertyValue(double value);
    explicit PropertyValue(const OdString& value);
    explicit PropertyValue(const OdDbObjectId& value);
    // Not in the application's record, which takes its integers as raw rows.
    static PropertyValue fromInteger(std::int64_t value);

    std::uint32_t kind() const { return m_kind; }
    std::uint64_t payload() const { return m_payload; }
    std::uint32_t flags() const { return m_flags; }
    // The payload read as what the kind says.
    bool toBool() const { return m_payload != 0; }
    std::int64_t toInteger() const { return std::int64_t(m_payload); }
    double toReal() const;
    OdDbObjectId toObjectId() const { return OdDbObjectId(m_database, m_payload); }

    // False unless this holds a string with a value.
    bool get(OdString& text) const;
    // Keeps the kind, drops the payload.
    void setNoValue();
    // Not in the application's record: what a multiple selection reports.
    void setVaries();
    void swap(PropertyValue& other) noexcept;

    friend bool operator==(const PropertyValue& a, const PropertyValue& b);
    friend bool operator!=(const PropertyValue& a, const PropertyValue& b) { return !(a == b); }

private:
    std::uint32_t m_kind;
    std::uint64_t m_payload;
    std::uint32_t m_flags;
    OdString m_text;
    OdDbDatabase* m_database = nullptr;
};

namespace Props {

// A colour travels as its packed value (kind 5). False for a value of another
// kind, or with no value or a varying one.
bool getValue(const PropertyValue& value, OdCmColor& color);
void setValue(PropertyValue& value, const OdCmColor& color);

} // namespace Props

} // namespace tdx
