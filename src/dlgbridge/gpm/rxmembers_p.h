#pragma once

#include <oda/OdError.h>
#include <oda/OdRxClass.h>
#include <tdx/AvRxObject.h>
#include <tdx/AvSmartPtr.h>

#include <type_traits>

namespace dbr::rx {

// The SDK's codes for a class registered twice and for one not registered.
constexpr OdResult kAlreadyRegistered = OdResult(313);
constexpr OdResult kNotRegistered = OdResult(255);

template<typename Parent, typename Self>
OdRxObject* queryX(const Self* self, const OdRxClass* cls, const OdRxClass* own)
{
    if (!cls)
        return nullptr;
    if (cls == own) {
        auto* object = const_cast<Self*>(self);
        object->addRef();
        return object;
    }
    if (own) {
        if (OdRxObjectPtr extension = own->getX(cls))
            return extension.detach();
    }
    return self->Parent::queryX(cls);
}

template<typename T>
AvSmartPtr<T> cast(const OdRxObject* object)
{
    if (!object)
        return AvSmartPtr<T>();
    OdRxObjectPtr answer(object->queryX(T::desc()), kOdRxObjAttach);
    if (!answer || !answer->isKindOf(T::desc()))
        return AvSmartPtr<T>();
    return AvSmartPtr<T>(static_cast<T*>(answer.detach()), kOdRxObjAttach);
}

template<typename T>
OdSmartPtr<T> createVirtualObject()
{
    if (!T::desc())
        throw OdError(kNotRegistered);
    OdRxObjectPtr object = T::desc()->create();
    if (!object || !object->isKindOf(T::desc()))
        return OdSmartPtr<T>();
    return OdSmartPtr<T>(static_cast<T*>(object.detach()), kOdRxObjAttach);
}

template<typename Parent>
void init(OdRxClass*& desc, const char* name, OdPseudoConstructorType constructor)
{
    // The root class is the SDK's and always there.
    if constexpr (!std::is_same_v<Parent, OdRxObject>) {
        if (!Parent::desc())
            Parent::rxInit();
    }
    if (desc)
        throw OdError(kAlreadyRegistered);
    desc = newAvRxClass(name, Parent::desc(), constructor);
}

inline void uninit(OdRxClass*& desc)
{
    if (!desc)
        throw OdError(kNotRegistered);
    deleteOdRxClass(desc);
    desc = nullptr;
}

} // namespace dbr::rx

#define DBR_GPM_DEFINE_RX_MEMBERS(Class, Parent, Name)                                                                 \
    OdRxClass* Class::g_pDesc = nullptr;                                                                               \
    OdRxClass* Class::desc()                                                                                           \
    {                                                                                                                  \
        return g_pDesc;                                                                                                \
    }                                                                                                                  \
    OdRxClass* Class::isA() const                                                                                      \
    {                                                                                                                  \
        return g_pDesc;                                                                                                \
    }                                                                                                                  \
    OdRxObject* Class::queryX(const OdRxClass* cls) const                                                              \
    {                                                                                                                  \
        return rx::queryX<Parent>(this, cls, g_pDesc);                                                                 \
    }                                                                                                                  \
    AvSmartPtr<Class> Class::queryX(const OdRxObject* object)                                                          \
    {                                                                                                                  \
        return rx::cast<Class>(object);                                                                                \
    }                                                                                                                  \
    OdSmartPtr<Class> Class::createVirtualObject()                                                                     \
    {                                                                                                                  \
        return rx::createVirtualObject<Class>();                                                                       \
    }                                                                                                                  \
    void Class::rxInit()                                                                                               \
    {                                                                                                                  \
        rx::init<Parent>(g_pDesc, Name, &Class::pseudoConstructor);                                                    \
    }                                                                                                                  \
    void Class::rxUninit()                                                                                             \
    {                                                                                                                  \
        rx::uninit(g_pDesc);                                                                                           \
    }                                                                                                                  \
    OdRxObjectPtr Class::pseudoConstructor()                                                                           \
    {                                                                                                                  \
        return OdRxObjectPtr();                                                                                        \
    }
