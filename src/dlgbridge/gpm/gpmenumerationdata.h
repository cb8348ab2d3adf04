#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

#include <memory>

class QAbstractListModel;

namespace oa {
class EnumerationAttribute;
}

namespace dbr {

// A property with a fixed list of values, chosen by label in a combo box; a
// row "*NoValue*" follows the labels where the property may have no value.
class DLGBRIDGE_EXPORT GPMEnumerationData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QAbstractListModel* enumerationModel READ enumerationModel CONSTANT)
    Q_PROPERTY(int initialCurrentIndex READ initialCurrentIndex CONSTANT)
    Q_PROPERTY(bool isVaries READ isVaries NOTIFY variesChanged)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMEnumerationData)

public:
    ~GPMEnumerationData() override;

    QString type() const override;
    QUrl componentUrl() const override;

    QAbstractListModel* enumerationModel() const;
    // The row of the value read at construction, or of the last choice
    // written; -1 for a varying value or one not in the list.
    int initialCurrentIndex() const;
    bool isVaries() const;

public Q_SLOTS:
    // A label's row writes its value, the row after the labels no value.
    void setCurrentIndex(int index);

Q_SIGNALS:
    void variesChanged();

protected:
    // Takes the property's enumeration attribute.
    explicit GPMEnumerationData(const oa::Property& property);
    GPMEnumerationData(const oa::Property& property, AvSmartPtr<const oa::EnumerationAttribute> attribute);

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
