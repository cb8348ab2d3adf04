#include "qmlwindow_p.h"

#include <QDebug>
#include <QEventLoop>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

namespace dbr::quickhost {

namespace {

constexpr int exposeTimeoutMs = 5000;

// Leaves a loop when its window receives an expose event.
class ExposeWatcher : public QObject
{
public:
    explicit ExposeWatcher(QEventLoop& loop)
        : m_loop(loop)
    {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose)
            QTimer::singleShot(0, &m_loop, &QEventLoop::quit);
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop& m_loop;
};

} // namespace

class QmlWindowPrivate
{
public:
    QmlWindowPrivate(QQmlEngine& qmlEngine, const QUrl& source, QObject* controller)
        : engine(qmlEngine)
        , url(source)
        , context(qmlEngine.rootContext())
    {
        context.setContextProperty(QStringLiteral("controller"), controller);
    }

    QQmlEngine& engine;
    const QUrl url;
    QQuickWindow window;
    QQmlContext context;
    std::unique_ptr<QQuickItem> root;
};

QmlWindow::QmlWindow(QQmlEngine& engine, const QUrl& url, QObject* controller)
    : d(std::make_unique<QmlWindowPrivate>(engine, url, controller))
{
    instantiate();
    // The item follows the window, so a resize by the user resizes the content.
    connect(&d->window, &QQuickWindow::widthChanged, this, [this](int width) {
        if (d->root)
            d->root->setWidth(width);
    });
    connect(&d->window, &QQuickWindow::heightChanged, this, [this](int height) {
        if (d->root)
            d->root->setHeight(height);
    });
}

QmlWindow::~QmlWindow() = default;

void QmlWindow::reload()
{
    d->root.reset();
    d->engine.clearComponentCache();
    instantiate();
}

QQuickItem* QmlWindow::root() const
{
    return d->root.get();
}

QQuickWindow& QmlWindow::window() const
{
    return d->window;
}

QQmlEngine& QmlWindow::engine() const
{
    return d->engine;
}

QUrl QmlWindow::url() const
{
    return d->url;
}

bool QmlWindow::waitForExposed()
{
    if (d->window.isExposed())
        return true;
    if (!d->window.isVisible())
        return false;
    QEventLoop loop;
    ExposeWatcher watcher(loop);
    d->window.installEventFilter(&watcher);
    QTimer::singleShot(exposeTimeoutMs, &loop, &QEventLoop::quit);
    loop.exec();
    d->window.removeEventFilter(&watcher);
    return d->window.isExposed();
}

void QmlWindow::instantiate()
{
    QQmlComponent component(&d->engine, d->url, QQmlComponent::PreferSynchronous);
    if (component.isLoading()) {
        qWarning() << "Only local QML can be shown, not" << d->url;
        return;
    }
    QObject* object = component.isReady() ? component.create(&d->context) : nullptr;
    if (!object) {
        qWarning().noquote() << component.errorString();
        return;
    }
    d->root.reset(qobject_cast<QQuickItem*>(object));
    if (!d->root) {
        qWarning() << d->url << "has no item at its root";
        delete object;
        return;
    }
    d->root->setParentItem(d->window.contentItem());
    const QSizeF size(d->root->width() > 0 ? d->root->width() : d->root->implicitWidth(),
                      d->root->height() > 0 ? d->root->height() : d->root->implicitHeight());
    d->window.resize(size.toSize());
    d->root->setSize(size);
    const QVariant title = d->root->property("title");
    if (title.type() == QVariant::String)
        d->window.setTitle(title.toString());
    Q_EMIT rootChanged();
}

} // namespace dbr::quickhost
