#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

#include <memory>

class QAbstractListModel;

namespace dbr {

// A real number, edited as text in the unit chosen from its units attribute,
// or as a plain number without one.
class DLGBRIDGE_EXPORT GPMRealData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QString value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(bool hasUnits READ hasUnits CONSTANT)
    Q_PROPERTY(QAbstractListModel* unitsModel READ unitsModel CONSTANT)
    Q_PROPERTY(int unitsIndex READ unitsIndex NOTIFY unitsIndexChanged)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMRealData)

public:
    ~GPMRealData() override;

    QString type() const override;
    QUrl componentUrl() const override;

    // In the current unit.
    QString value() const;
    // Read in the current unit. An empty text or "*NoValue*" clears the value,
    // "*Varies*" writes the varying state; other text that is no number is ignored.
    void setValue(const QString& text);

    bool hasUnits() const;
    // The units' display names, in the attribute's order.
    QAbstractListModel* unitsModel() const;
    int unitsIndex() const;

public Q_SLOTS:
    // The value isn't converted: it is read again in the new unit.
    void setCurrentUnitIndex(int index);

Q_SIGNALS:
    void valueChanged();
    void unitsIndexChanged();

protected:
    explicit GPMRealData(const oa::Property& property);

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
