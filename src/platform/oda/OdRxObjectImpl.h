#pragma once

#include <oda/OdRxObject.h>

#include <utility>

// Stand-in for the SDK's concrete form of a runtime object: T with a plain
// reference count that starts at one, for objects that stay on one thread.
template<typename T, typename TInterface = T>
class OdRxObjectImpl : public T
{
public:
    template<typename... Arguments>
    explicit OdRxObjectImpl(Arguments&&... arguments)
        : T(std::forward<Arguments>(arguments)...)
    {}

    template<typename... Arguments>
    static OdSmartPtr<TInterface> createObject(Arguments&&... arguments)
    {
        return OdSmartPtr<TInterface>(new OdRxObjectImpl(std::forward<Arguments>(arguments)...), kOdRxObjAttach);
    }

    void addRef() override { ++m_count; }
    void release() override
    {
        if (--m_count == 0)
            delete this;
    }
    long numRefs() const override { return m_count; }

private:
    long m_count = 1;
};
