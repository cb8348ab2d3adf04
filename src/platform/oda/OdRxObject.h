#pragma once

// Stand-in for the ODA SDK's root of reference-counted runtime objects. Only
// the counting is modelled; a concrete class decides how it counts.
class OdRxObject
{
public:
    virtual ~OdRxObject() = default;

    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual long numRefs() const = 0;

protected:
    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = default;
    OdRxObject& operator=(const OdRxObject&) = default;
};
