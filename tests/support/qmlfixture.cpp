#include "qmlfixture.h"

#include "paths.h"

#include <QDebug>
#include <QQmlComponent>
#include <QUrl>

#include <qut/qmlurl.h>

namespace dbr::test {

QmlFixture::QmlFixture()
{
    m_engine.addImportPath(qmlImportDir());
    qut::addQmlImportDirectory(qmlImportDir());
}

QmlFixture::~QmlFixture()
{
    // The objects go before the engine that made them.
    m_roots.clear();
}

QObject* QmlFixture::loadFile(const QString& fileName)
{
    QQmlComponent component(&m_engine, testDataUrl(fileName));
    return keep(instantiate(component));
}

QObject* QmlFixture::loadData(const QByteArray& qml)
{
    return keep(instantiate(qml));
}

QObject* QmlFixture::createChild(const QByteArray& qml, QObject& parent)
{
    QObject* object = instantiate(qml);
    if (object)
        object->setParent(&parent);
    return object;
}

QObject* QmlFixture::keep(QObject* object)
{
    if (object)
        m_roots.emplace_back(object);
    return object;
}

QObject* QmlFixture::instantiate(QQmlComponent& component)
{
    QObject* object = component.create();
    if (!object)
        qWarning() << component.errors();
    return object;
}

QObject* QmlFixture::instantiate(const QByteArray& qml)
{
    QQmlComponent component(&m_engine);
    component.setData(qml, testDataUrl(QStringLiteral("inline.qml")));
    return instantiate(component);
}

} // namespace dbr::test
