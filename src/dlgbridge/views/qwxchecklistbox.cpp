#include "qwxchecklistbox.h"

namespace dbr {

qwxCheckListBox::qwxCheckListBox(const OdString& name, qwxWindow& parent)
    : QObject(nullptr)
    , qwxListCtrl(name, parent)
{
    // Without its item now the list still answers from its rows, but never hears the user check one.
    if (QObject* item = findObject(wrappedObjectName()))
        connect(item, SIGNAL(checkedChanged(int,bool)), this, SLOT(handleCheckedChanged(int,bool)));
}

qwxCheckListBox::~qwxCheckListBox() = default;

void qwxCheckListBox::handleCheckedChanged(int row, bool checked)
{
    Check(row, checked);
}

} // namespace dbr
