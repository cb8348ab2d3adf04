#pragma once

#include <dlgbridge/core/qwxwindow.h>

#include <QByteArray>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <memory>

namespace dbr::bench {

// A host for controls that are made directly, over a QML root or none.
class Host : public qwxWindow
{
public:
    explicit Host(QObject* root = nullptr)
        : m_root(root)
    {}
    QString typeName() const override { return QStringLiteral("Host"); }
    QObject* root() const override { return m_root; }

private:
    QObject* m_root;
};

// A window showing one QML item (the kit imported), with a host over it for a control made directly.
class ShownQml
{
public:
    explicit ShownQml(const QByteArray& item);
    ~ShownQml();

    QObject* item(const char* name) const { return m_root->findChild<QObject*>(QLatin1String(name)); }
    qwxWindow& host() { return *m_host; }
    QQuickWindow& window() { return m_window; }
    // What the view does with a change happens in the turn of the event loop after it.
    static void settle() { QCoreApplication::processEvents(); }

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_root;
    std::unique_ptr<Host> m_host;
};

} // namespace dbr::bench
