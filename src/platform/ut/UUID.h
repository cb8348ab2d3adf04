#pragma once

#include <oda/OdString.h>

#include <array>
#include <cstdint>

namespace ut {

// Stand-in for the application's 128-bit identifier, written in its usual
// braced text form, such as "{6f1d2a90-...}".
class UUID
{
public:
    UUID() = default;
    // Text that is no identifier gives the null one.
    explicit UUID(const OdString& text);
    static UUID generate();

    bool isNull() const;
    operator OdString() const;

    friend bool operator==(const UUID& a, const UUID& b) { return a.m_bytes == b.m_bytes; }
    friend bool operator!=(const UUID& a, const UUID& b) { return !(a == b); }

private:
    std::array<std::uint8_t, 16> m_bytes{};
};

} // namespace ut
