#pragma once

#include <oda/OdSmartPtr.h>

#include <cstdint>

class OdDbDatabase;
class OdDbObject;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

namespace OdDb {
enum OpenMode {
    kForRead = 0,
    kForWrite = 1,
};
} // namespace OdDb

// Stand-in for the ODA SDK's database object id: a handle within one
// database, null when it has no handle. Two databases may use the same handle;
// their ids differ. Like the SDK's, an id doesn't keep its database alive.
class OdDbObjectId
{
public:
    static const OdDbObjectId kNull;

    OdDbObjectId() = default;
    // An id of no database, which opens nothing.
    explicit OdDbObjectId(std::uint64_t handle)
        : m_handle(handle)
    {}
    OdDbObjectId(OdDbDatabase* database, std::uint64_t handle)
        : m_database(handle ? database : nullptr)
        , m_handle(handle)
    {}

    bool isNull() const { return m_handle == 0; }
    std::uint64_t handle() const { return m_handle; }
    OdDbDatabase* database() const { return m_database; }
    // The id names an object of its database, erased or not.
    bool isValid() const;
    bool isErased() const;
    // The object, or null for a null, invalid or erased id.
    OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead) const;

    friend bool operator==(OdDbObjectId a, OdDbObjectId b)
    {
        return a.m_handle == b.m_handle && a.m_database == b.m_database;
    }
    friend bool operator!=(OdDbObjectId a, OdDbObjectId b) { return !(a == b); }
    friend bool operator<(OdDbObjectId a, OdDbObjectId b)
    {
        return a.m_database != b.m_database ? a.m_database < b.m_database : a.m_handle < b.m_handle;
    }

private:
    OdDbDatabase* m_database = nullptr;
    std::uint64_t m_handle = 0;
};
