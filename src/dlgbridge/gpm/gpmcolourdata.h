#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>

#include <memory>

class QAbstractListModel;

namespace dbr {

// A CAD colour, chosen in a colour combo over the item's own ColorModel. It
// has no editor file of its own: the panel knows it by its type, "colour".
class DLGBRIDGE_EXPORT GPMColourData : public GPMPropertyDataBase
{
    Q_OBJECT
    Q_PROPERTY(QAbstractListModel* colorModel READ colorModel CONSTANT)
    Q_PROPERTY(int initialColorIndex READ initialColorIndex CONSTANT)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMColourData)

public:
    ~GPMColourData() override;

public Q_SLOTS:
    QString type() const override;
    // Null when the application offers no GUI controller or dialog factory.
    QAbstractListModel* colorModel() const;
    // The row of the colour read at construction; 0 when there was none.
    int initialColorIndex() const;
    // Writes the colour of that row; an index that is no row writes no colour
    // (colour method kNone).
    void setCurrentColor(int index);

protected:
    explicit GPMColourData(const oa::Property& property);

private:
    struct Private;
    std::unique_ptr<Private> const d;
};

} // namespace dbr
