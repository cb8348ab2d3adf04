#pragma once

#include <QQmlEngine>
#include <QString>

#include <memory>
#include <vector>

class QObject;
class QQmlComponent;

namespace dbr::test {

// A real QML engine that reaches the component kit, and the objects it loaded.
class QmlFixture
{
public:
    QmlFixture();
    ~QmlFixture();

    // Loads tests/data/<fileName>; null (with the errors logged) when it fails.
    QObject* loadFile(const QString& fileName);
    // Loads QML text given inline; it resolves the components of tests/data.
    QObject* loadData(const QByteArray& qml);
    // Creates an object from QML text as a QObject child of parent, which owns it.
    QObject* createChild(const QByteArray& qml, QObject& parent);

    QQmlEngine& engine() { return m_engine; }

private:
    QObject* keep(QObject* object);
    QObject* instantiate(QQmlComponent& component);
    QObject* instantiate(const QByteArray& qml);

    QQmlEngine m_engine;
    std::vector<std::unique_ptr<QObject>> m_roots;
};

} // namespace dbr::test
