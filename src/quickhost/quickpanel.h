#pragma once

#include <dlgbridge/services/iwxqtpanel.h>
#include <quickhost/quickhost_export.h>

#include <QObject>
#include <QUrl>

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace dbr::quickhost {

class QmlWindow;

// A panel of the application: its QML in a window of its own, which the
// application may replace at any time with reload().
class DLGBRIDGE_QUICKHOST_EXPORT QuickPanel : public QObject, public IWxQtPanel
{
    Q_OBJECT

public:
    QuickPanel(QQmlEngine& engine, const QUrl& url);
    ~QuickPanel() override;

    QObject* root() override;
    wxWindow* wx() override;

    QQuickWindow& window() const;
    void reload();

Q_SIGNALS:
    // The QML was replaced: wrappers bound to the panel must rebind.
    void reloaded();

private:
    std::unique_ptr<QmlWindow> const m_content;
};

} // namespace dbr::quickhost
