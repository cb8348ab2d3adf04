#include "gpmtreedata.h"

#include "rxmembers_p.h"

#include <QQmlEngine>

#include <qut/qmlurl.h>

namespace dbr {

DBR_GPM_DEFINE_RX_MEMBERS(GPMTreeData, OdRxObject, "GPMTreeData")

GPMTreeData::GPMTreeData()
{
    // The smart pointers own the item; QML would delete one it got from a method.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

GPMTreeData::~GPMTreeData() = default;

QString GPMTreeData::type() const
{
    return QString();
}

QString GPMTreeData::description() const
{
    return QString();
}

QUrl GPMTreeData::componentUrl() const
{
    return gpmComponentUrl(QStringLiteral("UnknownType.qml"));
}

unsigned int GPMTreeData::sortWeight() const
{
    return 0;
}

QUrl GPMTreeData::gpmComponentUrl(const QString& fileName)
{
    return qut::getQUrl(QStringLiteral("qml/gpm/") + fileName, QStringLiteral("Arvela.Components"),
                        QStringLiteral("arvela/src/dlgbridge/plugins"));
}

} // namespace dbr
