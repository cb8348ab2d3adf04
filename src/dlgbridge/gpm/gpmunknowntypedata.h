#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

namespace dbr {

// A property of a type no factory knows: shown as its type writes it, never edited here.
class DLGBRIDGE_EXPORT GPMUnknownTypeData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value CONSTANT)
    Q_PROPERTY(bool useExperimentalUI READ useExperimentalUI CONSTANT)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMUnknownTypeData)

public:
    explicit GPMUnknownTypeData(const oa::Property& property);
    ~GPMUnknownTypeData() override;

    QString value() const;
    bool useExperimentalUI() const;
};

} // namespace dbr
