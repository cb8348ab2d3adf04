#pragma once

#include <cstdint>

// Stand-in for the ODA SDK's database object id: a handle, null when 0.
class OdDbObjectId
{
public:
    static const OdDbObjectId kNull;

    OdDbObjectId() = default;
    explicit OdDbObjectId(std::uint64_t handle)
        : m_handle(handle)
    {}

    bool isNull() const { return m_handle == 0; }
    std::uint64_t handle() const { return m_handle; }

    friend bool operator==(OdDbObjectId a, OdDbObjectId b) { return a.m_handle == b.m_handle; }
    friend bool operator!=(OdDbObjectId a, OdDbObjectId b) { return !(a == b); }
    friend bool operator<(OdDbObjectId a, OdDbObjectId b) { return a.m_handle < b.m_handle; }

private:
    std::uint64_t m_handle = 0;
};
