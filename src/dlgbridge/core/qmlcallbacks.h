#pragma once

// The callback objects of connections, for the library's own rooms: controls
// connect some of theirs through QmlChildList::connectCallback. Not installed.

#include "qwxevent.h"

#include <QObject>

#include <functional>

namespace dbr {

class qwxWindow;

using CommandHandler = EventHandler<qwxCommandEvent>;
using CommandEventBuilder = std::function<qwxCommandEvent(qwxWindow*)>;

// Receives a QML signal and calls a command handler with an event of its source.
// Without a builder the event carries the signal's value, if any.
class QmlGenericCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlGenericCallback)

public:
    QmlGenericCallback(CommandHandler handler, qwxWindow* window, CommandEventBuilder eventBuilder = {});

public Q_SLOTS:
    void onEvent();
    void onIntEvent(int value);
    void onStringEvent(QString value);

private:
    void deliver(qwxCommandEvent&& event);

    CommandHandler m_handler;
    qwxWindow* m_window;
    CommandEventBuilder m_eventBuilder;
};

// Calls a handler with an event that only names its source.
template<typename Event>
class PlainEventRelay
{
public:
    PlainEventRelay(qwxWindow* window, EventHandler<Event> handler)
        : m_window(window)
        , m_handler(std::move(handler))
    {}

protected:
    void raise()
    {
        Event event(m_window);
        m_handler(event);
    }

private:
    qwxWindow* m_window;
    EventHandler<Event> m_handler;
};

class QmlFocusCallback : public QObject, private PlainEventRelay<qwxFocusEvent>
{
    Q_OBJECT
public:
    using PlainEventRelay::PlainEventRelay;
public Q_SLOTS:
    void onEvent() { raise(); }
};

class QmlMouseEventCallback : public QObject, private PlainEventRelay<qwxMouseEvent>
{
    Q_OBJECT
public:
    using PlainEventRelay::PlainEventRelay;
public Q_SLOTS:
    void onDoubleClick() { raise(); }
};

class QmlContextMenuCallback : public QObject, private PlainEventRelay<qwxContextMenuEvent>
{
    Q_OBJECT
public:
    using PlainEventRelay::PlainEventRelay;
public Q_SLOTS:
    void onEvent() { raise(); }
};

class QmlSizeCallback : public QObject, private PlainEventRelay<qwxSizeEvent>
{
    Q_OBJECT
public:
    using PlainEventRelay::PlainEventRelay;
public Q_SLOTS:
    void onWidthChanged() { raise(); }
    void onHeightChanged() { raise(); }
};

class QmlKeyCallback : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(QmlKeyCallback)

public:
    QmlKeyCallback(qwxWindow* window, EventHandler<qwxKeyEvent> handler);

public Q_SLOTS:
    void onKeyPressed(int key, int modifiers, QString text);

private:
    qwxWindow* m_window;
    EventHandler<qwxKeyEvent> m_handler;
};

} // namespace dbr
