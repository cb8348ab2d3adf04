#pragma once

#include <type_traits>
#include <utility>

// Stand-in for the application's smart pointer to runtime objects: it holds
// one reference of an object that counts its own (addRef and release).
template<typename T>
class AvSmartPtr
{
public:
    AvSmartPtr() = default;
    // Takes a new reference, as the SDK's pointers do when given a raw pointer.
    explicit AvSmartPtr(T* object)
        : m_object(object)
    {
        if (m_object)
            counted()->addRef();
    }
    AvSmartPtr(const AvSmartPtr& other)
        : AvSmartPtr(other.m_object)
    {
    }
    AvSmartPtr(AvSmartPtr&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    AvSmartPtr& operator=(AvSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~AvSmartPtr()
    {
        if (m_object)
            counted()->release();
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    // The count is no part of the object's constness, so a pointer to a const
    // object still holds a reference.
    std::remove_const_t<T>* counted() const { return const_cast<std::remove_const_t<T>*>(m_object); }

    T* m_object = nullptr;
};
