#include "modelonitem_p.h"

#include <dlgbridge/core/qwxwindow.h>

#include <QJSValue>
#include <QObject>
#include <QStringList>

namespace dbr {

namespace {

// Kept on the item by the first wrapper that replaces its model: a later wrapper
// (a second load, or a second wrapper found by the same name) would otherwise
// take another wrapper's model for the declared entries.
constexpr char declaredModelProperty[] = "_dlgbridge_declaredModel";

} // namespace

ModelOnItemBase::ModelOnItemBase(qwxWindow& control)
    : m_control(control)
    , m_declared(control.getQmlProperty("model"))
{
    QObject* item = control.findObjectIfAny();
    if (!item)
        return;
    // Kept in a list: an item that declares no entries has an invalid "model", and
    // setting an invalid value would remove the property instead of keeping it.
    const QVariant kept = item->property(declaredModelProperty);
    if (kept.isValid())
        m_declared = kept.toList().value(0);
    else
        item->setProperty(declaredModelProperty, QVariantList{m_declared});
}

QStringList ModelOnItemBase::declaredStrings() const
{
    // A "var" property may hand its array over as a JavaScript value.
    if (m_declared.userType() == qMetaTypeId<QJSValue>())
        return m_declared.value<QJSValue>().toVariant().toStringList();
    return m_declared.toStringList();
}

void ModelOnItemBase::show(QObject* model)
{
    QObject* item = m_control.findObjectIfAny();
    if (m_control.setQmlProperty("model", QVariant::fromValue(model))) {
        m_showing = item;
        return;
    }
    // An item without the property refuses the write but keeps it as a dynamic
    // property, where the model would outlive its wrapper as a dangling pointer.
    if (item && item->property("model").value<QObject*>() == model)
        item->setProperty("model", QVariant());
}

void ModelOnItemBase::takeBack(const QObject* model)
{
    // The item that got the model, not the one the name finds now: another item
    // of that name may have come first since. A vanished item, or one showing
    // another model by now, needs nothing back.
    if (m_showing && m_showing->property("model").value<QObject*>() == model)
        m_showing->setProperty("model", m_declared);
}

} // namespace dbr
