#include "OdRxClass.h"

#include <tdx/AvRxObject.h>

struct OdRxClass::Private
{
    OdString name;
    OdRxClass* parent;
    OdPseudoConstructorType constructor;
    AvRxProtocolExtManager extensions;
};

OdRxClass::OdRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor)
    : d(new Private{name, parent, constructor, {}})
{}

OdRxClass::~OdRxClass() = default;

const OdString& OdRxClass::name() const
{
    return d->name;
}

OdRxClass* OdRxClass::myParent() const
{
    return d->parent;
}

bool OdRxClass::isDerivedFrom(const OdRxClass* other) const
{
    for (const OdRxClass* cls = this; cls; cls = cls->myParent()) {
        if (cls == other)
            return true;
    }
    return false;
}

OdRxObjectPtr OdRxClass::create() const
{
    return d->constructor ? d->constructor() : OdRxObjectPtr();
}

OdRxObjectPtr OdRxClass::getX(const OdRxClass* protocolClass) const
{
    return d->extensions.getX(protocolClass);
}

OdRxObjectPtr OdRxClass::addX(const OdRxClass* protocolClass, OdRxObject* extension)
{
    return d->extensions.addX(protocolClass, extension);
}

OdRxObjectPtr OdRxClass::delX(const OdRxClass* protocolClass)
{
    return d->extensions.delX(protocolClass);
}

void deleteOdRxClass(OdRxClass* cls)
{
    delete cls;
}

OdRxClass* OdRxObject::desc()
{
    static OdRxClass root("OdRxObject", nullptr, nullptr);
    return &root;
}

OdRxClass* OdRxObject::isA() const
{
    return desc();
}

OdRxObject* OdRxObject::queryX(const OdRxClass* cls) const
{
    if (!cls)
        return nullptr;
    if (cls == desc()) {
        auto* self = const_cast<OdRxObject*>(this);
        self->addRef();
        return self;
    }
    return desc()->getX(cls).detach();
}

bool OdRxObject::isKindOf(const OdRxClass* cls) const
{
    return isA()->isDerivedFrom(cls);
}
