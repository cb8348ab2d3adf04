#pragma once

#include <dlgbridge/core/qwxcontrol.h>

#include <memory>

namespace dbr {

class qwxGaugePrivate;

// A progress bar. It keeps the range and value it was given and answers with
// those, whatever its item shows.
class DLGBRIDGE_EXPORT qwxGauge : public qwxControl
{
public:
    qwxGauge(const OdString& name, qwxWindow& parent);
    ~qwxGauge() override;

    DBR_WRAPPER_TYPE(qwxGauge)

    // A range of 0 is taken as 1.
    void SetRange(int range);
    void SetValue(int value);
    int GetValue() const;
    int GetRange() const;

private:
    std::unique_ptr<qwxGaugePrivate> const d;
};

} // namespace dbr
