#include "panellistenerhandler.h"

#include "qtpanelactivatelistener.h"

#include <algorithm>

namespace dbr {

void PanelListenerHandler::addPanelListener(QtPanelActivateListener* listener, const QUrl& url)
{
    auto& listeners = m_listeners[url];
    if (!listener || std::find(listeners.begin(), listeners.end(), listener) != listeners.end())
        return;
    listeners.push_back(listener);
}

void PanelListenerHandler::removePanelListener(QtPanelActivateListener* listener, const QUrl& url)
{
    const auto entry = m_listeners.find(url);
    if (entry == m_listeners.end() || !listener)
        return;
    auto& listeners = entry->second;
    const auto found = std::find(listeners.begin(), listeners.end(), listener);
    if (found != listeners.end())
        listeners.erase(found);
}

void PanelListenerHandler::activatePanel(bool active, const QUrl& url)
{
    notify(url, [active](QtPanelActivateListener& listener) { listener.activatePanel(active); });
}

void PanelListenerHandler::postLoaderActivation(bool active, const QUrl& url)
{
    notify(url, [active](QtPanelActivateListener& listener) { listener.postLoaderActivation(active); });
}

template<typename Call>
void PanelListenerHandler::notify(const QUrl& url, Call call) const
{
    const auto entry = m_listeners.find(url);
    if (entry == m_listeners.end())
        return;
    for (QtPanelActivateListener* listener : entry->second) {
        if (listener)
            call(*listener);
    }
}

} // namespace dbr
