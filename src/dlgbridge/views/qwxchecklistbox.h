#pragma once

#include <dlgbridge/views/qwxlistctrl.h>

#include <QObject>

namespace dbr {

// A list with a check box per row. A mark the user sets in the item is stored
// before any handler of the item's "checkedChanged" hears of it.
class DLGBRIDGE_EXPORT qwxCheckListBox : public QObject, public qwxListCtrl
{
    Q_OBJECT
    Q_DISABLE_COPY(qwxCheckListBox)

public:
    qwxCheckListBox(const OdString& name, qwxWindow& parent);
    ~qwxCheckListBox() override;

    DBR_WRAPPER_TYPE(qwxCheckListBox)

private Q_SLOTS:
    void handleCheckedChanged(int row, bool checked);
};

} // namespace dbr
