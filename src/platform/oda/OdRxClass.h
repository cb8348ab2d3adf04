#pragma once

#include <oda/OdRxObject.h>
#include <oda/OdString.h>

#include <memory>

using OdPseudoConstructorType = OdRxObjectPtr (*)();

// Stand-in for the SDK's runtime class: a name, a parent, a constructor and
// the protocol extensions attached to the class. A class lives from its
// creation (newAvRxClass) to deleteOdRxClass; references don't own it.
class OdRxClass : public OdRxObject
{
public:
    OdRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor);
    ~OdRxClass() override;
    OdRxClass(const OdRxClass&) = delete;
    OdRxClass& operator=(const OdRxClass&) = delete;

    const OdString& name() const;
    OdRxClass* myParent() const;
    // True for this class and every class above it.
    bool isDerivedFrom(const OdRxClass* other) const;
    // What the constructor makes; null without one.
    OdRxObjectPtr create() const;

    OdRxObjectPtr getX(const OdRxClass* protocolClass) const;
    // Both give back the extension they replaced.
    OdRxObjectPtr addX(const OdRxClass* protocolClass, OdRxObject* extension);
    OdRxObjectPtr delX(const OdRxClass* protocolClass);

    void addRef() override {}
    void release() override {}
    long numRefs() const override { return 1; }

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

void deleteOdRxClass(OdRxClass* cls);
