#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

namespace dbr {

// A whole number, edited as text.
class DLGBRIDGE_EXPORT GPMIntegerData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY valueChanged)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMIntegerData)

public:
    ~GPMIntegerData() override;

    QString type() const override;
    QUrl componentUrl() const override;

    QString value() const;
    // An empty text or "*NoValue*" clears the value, "*Varies*" writes the
    // varying state; other text that is no number is ignored.
    void setValue(const QString& text);

Q_SIGNALS:
    void valueChanged();

protected:
    explicit GPMIntegerData(const oa::Property& property);
};

} // namespace dbr
