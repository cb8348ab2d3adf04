#pragma once

#include <oa/PropertyAttributes.h>
#include <oda/OdRxObject.h>
#include <oda/OdString.h>
#include <tdx/PropertyValue.h>

#include <memory>

class AvRxProtocolExtManager;

namespace oa {

// Stand-in for a type of the property system: one object per type for the
// whole process, which turns values into text and carries the protocol
// extensions attached to it, in a store made when the first one is attached.
class PropertyType : public OdRxObject
{
public:
    explicit PropertyType(const OdString& name);
    ~PropertyType() override;
    PropertyType(const PropertyType&) = delete;
    PropertyType& operator=(const PropertyType&) = delete;

    const OdString& name() const { return m_name; }

    // Null until one is set; the type owns it.
    AvRxProtocolExtManager* extensionManager() const { return m_extensions.get(); }
    void setExtensionManager(std::unique_ptr<AvRxProtocolExtManager> manager);

    // Its extensions answer before its class does.
    OdRxObject* queryX(const OdRxClass* cls) const override;

    // The value as a user reads it: labels of a boolean or an enumeration, a
    // number in its best unit. False for a value that has no text (none, or varying).
    virtual bool valueToString(OdString& out, const tdx::PropertyValue& value, const OdRxObject* context,
                               const AttributeCollection* attributes) const;

    // The type lives as long as the process.
    void addRef() override {}
    void release() override {}
    long numRefs() const override { return 1; }

private:
    OdString m_name;
    std::unique_ptr<AvRxProtocolExtManager> m_extensions;
};

namespace PropType {

#define OA_PROPTYPE(Name)                                                                                              \
    struct Name                                                                                                        \
    {                                                                                                                  \
        static PropertyType* getType();                                                                                \
    };

OA_PROPTYPE(Angle)
OA_PROPTYPE(Area)
OA_PROPTYPE(Boolean)
OA_PROPTYPE(Color)
OA_PROPTYPE(Distance)
OA_PROPTYPE(Enumeration)
OA_PROPTYPE(Integer)
OA_PROPTYPE(Length)
OA_PROPTYPE(Linetype)
OA_PROPTYPE(Mass)
OA_PROPTYPE(Real)
OA_PROPTYPE(String)
OA_PROPTYPE(Volume)
// Not one the property tree has an item for.
OA_PROPTYPE(Point)

#undef OA_PROPTYPE

} // namespace PropType

} // namespace oa
