#pragma once

#include <utility>

// Stand-in for the ODA SDK's smart pointer: it holds one reference of a
// runtime object that counts its own (OdRxObject's addRef and release).
template<class T>
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
            m_object->addRef();
    }
    OdSmartPtr(const OdSmartPtr& other)
        : OdSmartPtr(other.m_object)
    {}
    template<class U>
    OdSmartPtr(const OdSmartPtr<U>& other)
        : OdSmartPtr(other.get())
    {}
    OdSmartPtr(OdSmartPtr&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {}
    OdSmartPtr& operator=(OdSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~OdSmartPtr() { release(); }

    // Drops the reference now.
    void release()
    {
        if (T* object = std::exchange(m_object, nullptr))
            object->release();
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    bool isNull() const { return m_object == nullptr; }
    explicit operator bool() const { return m_object != nullptr; }

    friend bool operator==(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object == b.m_object; }
    friend bool operator!=(const OdSmartPtr& a, const OdSmartPtr& b) { return a.m_object != b.m_object; }
    friend bool operator==(const OdSmartPtr& a, const T* b) { return a.m_object == b; }
    friend bool operator!=(const OdSmartPtr& a, const T* b) { return a.m_object != b; }

private:
    T* m_object = nullptr;
};
