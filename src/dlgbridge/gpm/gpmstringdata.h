#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

namespace dbr {

// A text. Whatever is typed is written as it stands, "*Varies*" too.
class DLGBRIDGE_EXPORT GPMStringData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY valueChanged)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMStringData)

public:
    ~GPMStringData() override;

    QString type() const override;
    QUrl componentUrl() const override;

    QString value() const;
    void setValue(const QString& text);

Q_SIGNALS:
    void valueChanged();

protected:
    explicit GPMStringData(const oa::Property& property);
};

} // namespace dbr
