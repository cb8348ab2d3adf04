#pragma once

#include <oda/OdSmartPtr.h>

class OdRxClass;
class OdRxObject;

using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

// Stand-in for the ODA SDK's root of reference-counted runtime objects: the
// counting, which a concrete class decides how to do, and the runtime class
// with its protocol extensions.
class OdRxObject
{
public:
    virtual ~OdRxObject() = default;

    // The root class "OdRxObject", registered for the whole process.
    static OdRxClass* desc();
    virtual OdRxClass* isA() const;
    // With one reference added for the caller, or null: this object for its
    // own class, else an extension that the class offers for cls.
    virtual OdRxObject* queryX(const OdRxClass* cls) const;
    bool isKindOf(const OdRxClass* cls) const;

    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual long numRefs() const = 0;

protected:
    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = default;
    OdRxObject& operator=(const OdRxObject&) = default;
};
