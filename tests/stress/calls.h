#pragma once

#include <dlgbridge/core/qwxevent.h>

#include <oda/OdString.h>

#include <functional>

class QObject;

namespace dbr {
class QmlChildList;
class qwxWindow;
} // namespace dbr

namespace dbr::stress {

class Rng;

// What a call needs besides its target: the run's choices, and what every
// handler it binds does when it hears an event.
struct CallContext
{
    Rng& rng;
    std::function<void(qwxEvent&)> hear;

    template<typename Event>
    EventHandler<Event> handler() const
    {
        return [hear = hear](Event& event) { hear(event); };
    }
};

// The tables below hold one entry per public call of a wrapper kind; a new
// control adds its calls here.

// A public call of any window, or of the kind the wrapper is, with odd arguments.
void callWrapper(qwxWindow& window, const CallContext& context);
// child<T> for a random wrapper class.
void lookUpTyped(QmlChildList& list, const OdString& name, Rng& rng);
// A connectTo... of the list; window, when there is one, serves the calls that take one.
void connectRandomly(QmlChildList& list, const OdString& name, qwxWindow* window, const CallContext& context);
// A signal or method a kit item or a plain control may have, with random arguments.
void emitOnItem(QObject& item, Rng& rng);
// A property that wrappers read or write, or that changes what the walk sees.
void setOnItem(QObject& item, Rng& rng);

} // namespace dbr::stress
