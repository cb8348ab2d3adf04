#pragma once

#include <oda/OdString.h>

// Stand-in for the ODA sheet set manager's sheet. Only its name is modelled.
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
