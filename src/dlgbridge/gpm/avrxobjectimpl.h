#pragma once

#include <oda/OdAlloc.h>
#include <tdx/AvSmartPtr.h>

#include <atomic>
#include <cstdint>
#include <new>
#include <utility>

namespace dbr {

// The concrete form of a runtime object of the property tree: T with an atomic
// reference count that starts at one, allocated by the SDK's allocator. The
// object goes when the last reference is released.
template<typename T, typename TInterface = T>
class AvRxObjectImpl : public T
{
public:
    template<typename... Arguments>
    explicit AvRxObjectImpl(Arguments&&... arguments)
        : T(std::forward<Arguments>(arguments)...)
    {}

    // The one reference of a new object, taken over by the pointer.
    template<typename... Arguments>
    static AvSmartPtr<TInterface> createObject(Arguments&&... arguments)
    {
        return AvSmartPtr<TInterface>(new AvRxObjectImpl(std::forward<Arguments>(arguments)...), kOdRxObjAttach);
    }

    void addRef() override { m_refs.fetch_add(1, std::memory_order_relaxed); }
    void release() override
    {
        if (m_refs.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }
    long numRefs() const override { return m_refs.load(std::memory_order_acquire); }

    static void* operator new(std::size_t size)
    {
        for (;;) {
            if (void* block = odrxAlloc(size))
                return block;
            const std::new_handler handler = std::get_new_handler();
            if (!handler)
                throw std::bad_alloc();
            handler();
        }
    }
    static void operator delete(void* block) { odrxFree(block); }

private:
    std::atomic<std::int32_t> m_refs{1};
};

} // namespace dbr
