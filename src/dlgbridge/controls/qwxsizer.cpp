#include "qwxsizer.h"

#include <QDebug>

namespace dbr {

qwxSizerItem* qwxSizer::Insert(size_t, qwxWindow*, int, int, int, qwxObject*)
{
    qDebug("qwxSizer::Insert : stub");
    return nullptr;
}

qwxSizerItem* qwxSizer::GetItem(size_t)
{
    qDebug("qwxSizer::GetItem : stub");
    return nullptr;
}

void qwxSizer::SetSizeHints(qwxWindow*)
{
    qDebug("qwxSizer::SetSizeHints : stub");
}

void qwxSizer::Layout()
{
    qDebug("qwxSizer::Layout : stub");
}

wxSize qwxSizerItem::GetSize() const
{
    qDebug("qwxSizer::GetSize : stub");
    return wxSize(0, 0);
}

qwxSizer* qwxSizerItem::GetSizer()
{
    qDebug("qwxSizer::GetSizer : stub");
    return nullptr;
}

} // namespace dbr
