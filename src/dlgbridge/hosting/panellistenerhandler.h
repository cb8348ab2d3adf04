#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QUrl>

#include <map>
#include <vector>

namespace dbr {

class QtPanelActivateListener;

// The listeners of each panel, by the panel's URL, called in the order they
// registered. A plain value: a copy holds the same (unowned) listeners.
class DLGBRIDGE_EXPORT PanelListenerHandler
{
public:
    using Listeners = std::map<QUrl, std::vector<QtPanelActivateListener*>>;

    // A listener already registered for the URL is not added again. The URL's
    // entry is made even for a null listener.
    void addPanelListener(QtPanelActivateListener* listener, const QUrl& url);
    // An entry left empty stays.
    void removePanelListener(QtPanelActivateListener* listener, const QUrl& url);
    // A listener must not add or remove listeners of the same URL from these calls.
    void activatePanel(bool active, const QUrl& url);
    void postLoaderActivation(bool active, const QUrl& url);

    const Listeners& listeners() const { return m_listeners; }

private:
    template<typename Call>
    void notify(const QUrl& url, Call call) const;

    Listeners m_listeners;
};

} // namespace dbr
