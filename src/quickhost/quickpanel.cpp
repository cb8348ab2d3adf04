#include "quickpanel.h"

#include "qmlwindow_p.h"

#include <QQuickItem>

namespace dbr::quickhost {

QuickPanel::QuickPanel(QQmlEngine& engine, const QUrl& url)
    : m_content(std::make_unique<QmlWindow>(engine, url, nullptr))
{}

QuickPanel::~QuickPanel() = default;

QObject* QuickPanel::root()
{
    return m_content->root();
}

wxWindow* QuickPanel::wx()
{
    return nullptr;
}

QQuickWindow& QuickPanel::window() const
{
    return m_content->window();
}

void QuickPanel::reload()
{
    m_content->reload();
    Q_EMIT reloaded();
}

} // namespace dbr::quickhost
