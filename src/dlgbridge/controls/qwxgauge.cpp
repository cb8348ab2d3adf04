#include "qwxgauge.h"

namespace dbr {

class qwxGaugePrivate
{
public:
    int range = 1;
    int value = 0;
};

qwxGauge::qwxGauge(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxGaugePrivate>())
{}

qwxGauge::~qwxGauge() = default;

void qwxGauge::SetRange(int range)
{
    d->range = range == 0 ? 1 : range;
    setQmlProperty("to", d->range);
}

void qwxGauge::SetValue(int value)
{
    d->value = value;
    setQmlProperty("value", double(value));
}

int qwxGauge::GetValue() const
{
    return d->value;
}

int qwxGauge::GetRange() const
{
    return d->range;
}

} // namespace dbr
