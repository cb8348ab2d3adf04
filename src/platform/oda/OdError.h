#pragma once

#include <oda/OdString.h>

// The SDK names its result codes; the library throws them by number.
enum OdResult : int { eOk = 0 };

// Stand-in for the SDK's exception: a result code.
class OdError
{
public:
    explicit OdError(OdResult code)
        : m_code(code)
    {}

    OdResult code() const { return m_code; }
    OdString description() const;

private:
    OdResult m_code;
};
