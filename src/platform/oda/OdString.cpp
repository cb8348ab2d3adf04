#include "OdString.h"

#include <QString>

#include <algorithm>

OdString::OdString(const OdChar* text)
    : m_text(text ? text : L"")
{}

OdString::OdString(const OdChar* text, int length)
    : m_text(text, static_cast<size_t>(length))
{}

OdString::OdString(const char* text)
    : m_text(QString::fromUtf8(text).toStdWString())
{}

int OdString::replace(OdChar oldChar, OdChar newChar)
{
    const auto count = std::count(m_text.begin(), m_text.end(), oldChar);
    std::replace(m_text.begin(), m_text.end(), oldChar, newChar);
    return static_cast<int>(count);
}
