#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

#include <memory>

class QAbstractListModel;

namespace dbr {

// A yes or no, chosen in a combo box by the words of its boolean value
// attribute: row 0 is true, row 1 false, row 2 "*NoValue*" where the property
// may have no value.
class DLGBRIDGE_EXPORT GPMBooleanData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QAbstractListModel* enumerationModel READ enumerationModel CONSTANT)
    Q_PROPERTY(int initialCurrentIndex READ initialCurrentIndex CONSTANT)
    Q_PROPERTY(bool isVaries READ isVaries NOTIFY variesChanged)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMBooleanData)

public:
    ~GPMBooleanData() override;

    QString type() const override;
    QUrl componentUrl() const override;

    QAbstractListModel* enumerationModel() const;
    // The row of the value read at construction, or of the last choice
    // written; -1 for a varying value.
    int initialCurrentIndex() const;
    bool isVaries() const;

public Q_SLOTS:
    void setCurrentIndex(int index);

Q_SIGNALS:
    void variesChanged();

protected:
    explicit GPMBooleanData(const oa::Property& property);

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
