#pragma once

#include <string>

using OdChar = wchar_t;

// Stand-in for the ODA SDK's wide string: a value type over OdChar.
class OdString
{
public:
    OdString() = default;
    OdString(const OdChar* text);
    OdString(const OdChar* text, int length);
    // Narrow text is taken as UTF-8.
    OdString(const char* text);

    const OdChar* c_str() const { return m_text.c_str(); }
    int getLength() const { return static_cast<int>(m_text.size()); }
    bool isEmpty() const { return m_text.empty(); }
    // As in the SDK, an index past the end is the caller's fault.
    OdChar getAt(int index) const { return m_text[static_cast<size_t>(index)]; }

    OdString& operator+=(const OdString& other)
    {
        m_text += other.m_text;
        return *this;
    }
    friend OdString operator+(OdString a, const OdString& b) { return a += b; }

    friend bool operator==(const OdString& a, const OdString& b) { return a.m_text == b.m_text; }
    friend bool operator!=(const OdString& a, const OdString& b) { return !(a == b); }
    friend bool operator<(const OdString& a, const OdString& b) { return a.m_text < b.m_text; }

private:
    std::wstring m_text;
};
