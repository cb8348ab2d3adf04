#include "modelonitem_p.h"

#include <dlgbridge/core/qwxwindow.h>

#include <QObject>
#include <QStringList>

namespace dbr {

ModelOnItemBase::ModelOnItemBase(qwxWindow& control)
    : m_control(control)
    , m_declared(control.getQmlProperty("model"))
{}

QStringList ModelOnItemBase::declaredStrings() const
{
    return m_declared.toStringList();
}

void ModelOnItemBase::show(QObject* model)
{
    m_control.setQmlProperty("model", QVariant::fromValue(model));
}

void ModelOnItemBase::takeBack(const QObject* model)
{
    // A vanished item or one showing another model needs nothing back.
    QObject* item = m_control.findObjectIfAny();
    if (item && item->property("model").value<QObject*>() == model)
        item->setProperty("model", m_declared);
}

} // namespace dbr
