#pragma once

#include <oda/OdRxClass.h>
#include <tdx/AvSmartPtr.h>

// The runtime class members of each class of the property tree. Its descriptor
// is null until rxInit; the library registers all of them when it is loaded.
#define DBR_GPM_DECLARE_RX_MEMBERS(Class)                                                                              \
public:                                                                                                                \
    static OdRxClass* desc();                                                                                          \
    OdRxClass* isA() const override;                                                                                   \
    OdRxObject* queryX(const OdRxClass* cls) const override;                                                           \
    static AvSmartPtr<Class> queryX(const OdRxObject* object);                                                         \
    /* Always null: items come only from factories. */                                                                 \
    static OdSmartPtr<Class> createVirtualObject();                                                                    \
    static void rxInit();                                                                                              \
    static void rxUninit();                                                                                            \
    static OdRxObjectPtr pseudoConstructor();                                                                          \
                                                                                                                       \
private:                                                                                                               \
    static OdRxClass* g_pDesc;
