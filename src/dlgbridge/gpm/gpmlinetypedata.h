#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

#include <memory>

class QAbstractListModel;

namespace dbr {

// A line type of the current drawing, chosen in a line type combo over the
// item's own LineTypeModel, which follows the current document for as long as
// the item lives. The panel knows it by its type, "linetype".
class DLGBRIDGE_EXPORT GPMLineTypeData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QAbstractListModel* lineTypeModel READ lineTypeModel CONSTANT)
    Q_PROPERTY(int initialLineTypeIndex READ initialLineTypeIndex CONSTANT)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMLineTypeData)

public:
    ~GPMLineTypeData() override;

    QString type() const override;
    // Null when the application offers no GUI controller or dialog factory.
    QAbstractListModel* lineTypeModel() const;
    // The row of the line type read at construction; 0 when none matched.
    int initialLineTypeIndex() const;

public Q_SLOTS:
    // Writes the line type of that row; "*Varies*" and "Load..." write the null
    // id. An index that is no row does nothing.
    void setCurrentLineType(int index);

protected:
    explicit GPMLineTypeData(const oa::Property& property);

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
