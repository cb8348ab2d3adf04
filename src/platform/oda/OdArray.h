#pragma once

#include <vector>

// Stand-in for the ODA SDK's array: a growable value array.
template<class T>
class OdArray
{
public:
    using const_iterator = typename std::vector<T>::const_iterator;

    OdArray() = default;
    OdArray(std::initializer_list<T> values)
        : m_values(values)
    {}

    unsigned int size() const { return static_cast<unsigned int>(m_values.size()); }
    unsigned int length() const { return size(); }
    bool isEmpty() const { return m_values.empty(); }
    void append(const T& value) { m_values.push_back(value); }
    void clear() { m_values.clear(); }

    const T& operator[](unsigned int index) const { return m_values[index]; }
    T& operator[](unsigned int index) { return m_values[index]; }
    const_iterator begin() const { return m_values.begin(); }
    const_iterator end() const { return m_values.end(); }

    friend bool operator==(const OdArray& a, const OdArray& b) { return a.m_values == b.m_values; }

private:
    std::vector<T> m_values;
};
