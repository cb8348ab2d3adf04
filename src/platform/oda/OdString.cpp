#include "OdString.h"

#include <QString>

OdString::OdString(const OdChar* text)
    : m_text(text ? text : L"")
{}

OdString::OdString(const OdChar* text, int length)
    : m_text(text, static_cast<size_t>(length))
{}

OdString::OdString(const char* text)
    : m_text(QString::fromUtf8(text).toStdWString())
{}
