#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

// Tells a smart pointer to take over a reference the caller already holds.
enum OdRxObjMod { kOdRxObjAttach };

// Stand-in for the SDK's smart pointer to runtime objects: it holds one
// reference of an object that counts its own (addRef and release).
template<typename T>
class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    // Takes a new reference, as the SDK's pointers do when given a raw pointer.
    OdSmartPtr(T* object)
        : m_object(object)
    {
        if (m_object)
            counted()->addRef();
    }
    // Takes over the caller's reference: what a creator or queryX handed out.
    OdSmartPtr(T* object, OdRxObjMod)
        : m_object(object)
    {}
    OdSmartPtr(const OdSmartPtr& other)
        : OdSmartPtr(other.m_object)
    {}
    OdSmartPtr(OdSmartPtr&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {}
    // From a pointer to a derived class, or to the const form of the same.
    template<typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    OdSmartPtr(OdSmartPtr<U> other) noexcept
        : m_object(other.detach())
    {}
    OdSmartPtr& operator=(OdSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~OdSmartPtr()
    {
        if (m_object)
            counted()->release();
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    bool isNull() const { return m_object == nullptr; }

    // Gives up the reference without releasing it: the caller owns it now.
    T* detach() { return std::exchange(m_object, nullptr); }
    // Drops the reference now.
    void release() { OdSmartPtr().swap(*this); }
    void swap(OdSmartPtr& other) noexcept { std::swap(m_object, other.m_object); }

    friend bool operator==(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object == b.m_object; }
    friend bool operator!=(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object != b.m_object; }
    friend bool operator==(const OdSmartPtr& a, const T* b) { return a.m_object == b; }
    friend bool operator!=(const OdSmartPtr& a, const T* b) { return a.m_object != b; }

private:
    // The count is no part of the object's constness, so a pointer to a const
    // object still holds a reference.
    std::remove_const_t<T>* counted() const { return const_cast<std::remove_const_t<T>*>(m_object); }

    T* m_object = nullptr;
};
