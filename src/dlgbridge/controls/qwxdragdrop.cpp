#include "qwxdragdrop.h"

#include <QDebug>

namespace dbr {

qwxDataObject::~qwxDataObject() = default;

qwxDropTarget::~qwxDropTarget() = default;

void qwxDropTarget::SetDataObject(qwxDataObject* data)
{
    qDebug("qwxDropTarget::SetDataObject: stub");
    delete data;
}

qwxDropSource::qwxDropSource(const qwxDataObject&, qwxWindow&)
{
    qDebug("qwxDropSource::qwxDropSource: stub + ownership?");
}

int qwxDropSource::DoDragDrop(int)
{
    qDebug("qwxDropSource::DoDragDrop: stub");
    return 0;
}

} // namespace dbr
