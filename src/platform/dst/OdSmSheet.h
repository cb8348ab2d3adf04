#pragma once

#include <oda/OdString.h>

// Stand-in for a sheet of the CAD SDK's sheet set manager. Only its name is modelled.
namespace dst {

class OdSmSheet
{
public:
    explicit OdSmSheet(const OdString& name)
        : m_name(name)
    {
    }
    virtual ~OdSmSheet() = default;

    OdString getName() const { return m_name; }

private:
    OdString m_name;
};

} // namespace dst
