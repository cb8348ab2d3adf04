#include "textvalue_p.h"

#include "controlproperties_p.h"

#include <dlgbridge/core/qwxwindow.h>

#include <QDebug>
#include <QPointer>

#include <qut/qtconversions.h>

namespace dbr::textvalue {

namespace {

// Blocks the signals of a control's item while it lives, so that no handler
// hears a change made by code.
class ItemSignalBlocker
{
public:
    explicit ItemSignalBlocker(const qwxWindow& control)
        : m_item(control.findObject())
    {
        if (m_item)
            m_wasBlocked = m_item->blockSignals(true);
    }

    ~ItemSignalBlocker()
    {
        if (m_item)
            m_item->blockSignals(m_wasBlocked);
    }

    Q_DISABLE_COPY(ItemSignalBlocker)

private:
    QPointer<QObject> m_item;
    bool m_wasBlocked = false;
};

} // namespace

wxString text(const qwxWindow& control)
{
    return controlproperties::stringProperty(control, "text");
}

void setText(qwxWindow& control, const wxString& value)
{
    if (value.IsSameAs(text(control)))
        return;
    QObject* item = control.findObject();
    if (!item) {
        qWarning().noquote()
            << QStringLiteral("(%1) Unable to set value: child not found").arg(control.wrappedObjectName());
        return;
    }
    QMetaObject::invokeMethod(item, "clear", Qt::AutoConnection);
    if (!value.empty())
        QMetaObject::invokeMethod(item, "insert", Qt::DirectConnection, Q_ARG(int, 0),
                                  Q_ARG(QString, qut::toQt(value)));
}

void changeText(qwxWindow& control, const wxString& value)
{
    const ItemSignalBlocker blocker(control);
    setText(control, value);
}

} // namespace dbr::textvalue
