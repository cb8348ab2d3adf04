#pragma once

#include <QMetaType>

class wxWindow;

namespace qut {

// Stand-in for the application's handle by which QML names the wx window a
// dialog opened from it belongs over. Not owned; may name none.
class QtWindowParent
{
public:
    explicit QtWindowParent(wxWindow* parent = nullptr)
        : m_parent(parent)
    {}

    wxWindow* getWxParent() const { return m_parent; }

private:
    wxWindow* m_parent;
};

} // namespace qut

Q_DECLARE_METATYPE(qut::QtWindowParent*)
