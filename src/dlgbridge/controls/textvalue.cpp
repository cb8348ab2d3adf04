#include "textvalue_p.h"

#include <dlgbridge/core/qwxwindow.h>

#include <QDebug>

#include <qut/qtconversions.h>

namespace dbr::textvalue {

void setText(qwxWindow& control, const wxString& value, const wxString& old)
{
    if (value.IsSameAs(old))
        return;
    QObject* item = control.findObject();
    if (!item) {
        qWarning().noquote() << QStringLiteral("(%1) Unable to set value: child not found").arg(control.wrappedObjectName());
        return;
    }
    QMetaObject::invokeMethod(item, "clear", Qt::AutoConnection);
    if (!value.empty())
        QMetaObject::invokeMethod(item, "insert", Qt::DirectConnection, Q_ARG(int, 0), Q_ARG(QString, qut::toQt(value)));
}

ItemSignalBlocker::ItemSignalBlocker(const qwxWindow& control)
    : m_item(control.findObject())
{
    if (m_item)
        m_wasBlocked = m_item->blockSignals(true);
}

ItemSignalBlocker::~ItemSignalBlocker()
{
    if (m_item)
        m_item->blockSignals(m_wasBlocked);
}

} // namespace dbr::textvalue
