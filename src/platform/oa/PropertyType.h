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

// Every property type, for a macro to expand once per name. Point is not one the
// property tree has an item for.
#define OA_FOR_EACH_PROPTYPE(X)                                                                                        \
    X(Angle)                                                                                                           \
    X(Area)                                                                                                            \
    X(Boolean)                                                                                                         \
    X(Color)                                                                                                           \
    X(Distance)                                                                                                        \
    X(Enumeration)                                                                                                     \
    X(Integer)                                                                                                         \
    X(Length)                                                                                                          \
    X(Linetype)                                                                                                        \
    X(Mass)                                                                                                            \
    X(Real)                                                                                                            \
    X(String)                                                                                                          \
    X(Volume)                                                                                                          \
    X(Point)

#define OA_PROPTYPE(Name)                                                                                              \
    struct Name                                                                                                        \
    {                                                                                                                  \
        static PropertyType* getType();                                                                                \
    };
OA_FOR_EACH_PROPTYPE(OA_PROPTYPE)
#undef OA_PROPTYPE

} // namespace PropType

} // namespace oa
