#pragma once

#include <oda/OdRxClass.h>
#include <oda/OdRxObject.h>

#include <map>

// Stand-in for the application's base of its runtime objects.
class AvRxObject : public OdRxObject
{
protected:
    AvRxObject() = default;
};

// Stand-in for the application's way of creating a runtime class; the caller
// frees it with deleteOdRxClass.
OdRxClass* newAvRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor);

// Stand-in for the application's store of protocol extensions: at most one
// extension per protocol class, each held by one reference.
class AvRxProtocolExtManager
{
public:
    AvRxProtocolExtManager();
    ~AvRxProtocolExtManager();
    AvRxProtocolExtManager(const AvRxProtocolExtManager&) = delete;
    AvRxProtocolExtManager& operator=(const AvRxProtocolExtManager&) = delete;

    // Both give back the extension they replaced, with its reference.
    OdRxObjectPtr addX(const OdRxClass* protocolClass, OdRxObject* extension);
    OdRxObjectPtr delX(const OdRxClass* protocolClass);
    OdRxObjectPtr getX(const OdRxClass* protocolClass) const;

    // Not in the application's class: how many extensions are attached.
    std::size_t count() const { return m_extensions.size(); }

private:
    std::map<const OdRxClass*, OdRxObjectPtr> m_extensions;
};
