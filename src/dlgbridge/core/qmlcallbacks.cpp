#include "qmlcallbacks.h"

#include <qut/qtconversions.h>

namespace dbr {

QmlGenericCallback::QmlGenericCallback(CommandHandler handler, qwxWindow* window, CommandEventBuilder eventBuilder)
    : m_handler(std::move(handler))
    , m_window(window)
    , m_eventBuilder(std::move(eventBuilder))
{}

void QmlGenericCallback::onEvent()
{
    deliver(m_eventBuilder ? m_eventBuilder(m_window) : qwxCommandEvent(m_window));
}

void QmlGenericCallback::onIntEvent(int value)
{
    deliver(m_eventBuilder ? m_eventBuilder(m_window) : qwxCommandEvent(m_window, value, nullptr));
}

void QmlGenericCallback::onStringEvent(QString value)
{
    deliver(m_eventBuilder ? m_eventBuilder(m_window) : qwxCommandEvent(m_window, qut::wxFromQt(value), nullptr));
}

void QmlGenericCallback::deliver(qwxCommandEvent&& event)
{
    m_handler(event);
}

QmlKeyCallback::QmlKeyCallback(qwxWindow* window, EventHandler<qwxKeyEvent> handler)
    : m_window(window)
    , m_handler(std::move(handler))
{}

void QmlKeyCallback::onKeyPressed(int key, int modifiers, QString text)
{
    qwxKeyEvent event(m_window, key, modifiers, text);
    m_handler(event);
}

} // namespace dbr
