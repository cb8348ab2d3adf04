#pragma once

#include <QObject>
#include <QUrl>

#include <memory>

class QQmlEngine;
class QQuickItem;
class QQuickWindow;

namespace dbr::quickhost {

class QmlWindowPrivate;

// A top-level Qt Quick window showing one QML component, instantiated in a
// shared engine with the given objects in its context.
class QmlWindow : public QObject
{
    Q_OBJECT

public:
    QmlWindow(QQmlEngine& engine, const QUrl& url, QObject* controller);
    ~QmlWindow() override;

    // Throws the current item away and instantiates the component again.
    void reload();

    QQuickItem* root() const;
    QQuickWindow& window() const;
    QQmlEngine& engine() const;
    QUrl url() const;
    // Waits, at most a few seconds, until the window is on screen.
    bool waitForExposed();

Q_SIGNALS:
    void rootChanged();

private:
    void instantiate();

    std::unique_ptr<QmlWindowPrivate> const d;
};

} // namespace dbr::quickhost
