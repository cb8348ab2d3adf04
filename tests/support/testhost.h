#pragma once

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxcontrol.h>

#include <QPointer>

namespace dbr::test {

// The smallest host of wrappers: a window over a given QML root that owns its
// child list, as dialogs and existing panels do.
class TestHost : public qwxWindow
{
public:
    explicit TestHost(QObject* root = nullptr, const QString& name = QStringLiteral("DialogAV"))
        : m_root(root)
        , m_name(name)
        , m_list(*this)
    {}

    DBR_WRAPPER_TYPE(TestHost)
    QString wrappedObjectName() const override { return m_name; }
    QObject* root() const override { return m_root; }
    const QmlChildList* qmlChildren(UseParentListIfNone) const override { return &m_list; }
    QmlChildList* qmlChildren(UseParentListIfNone) override { return &m_list; }
    CustomTypes registerCustomTypes() override { return m_customTypes; }

    void setRoot(QObject* root) { m_root = root; }
    void setCustomTypes(CustomTypes types) { m_customTypes = std::move(types); }
    QmlChildList& list() { return m_list; }
    // Populates the list from the current root.
    void populate()
    {
        if (m_root)
            m_list.populate(*m_root);
    }

private:
    QPointer<QObject> m_root;
    QString m_name;
    CustomTypes m_customTypes;
    QmlChildList m_list;
};

// A control of no particular kind, for tests that need one.
class TestControl : public qwxControl
{
public:
    using qwxControl::qwxControl;

    DBR_WRAPPER_TYPE(TestControl)
};

// A factory for the given wrapper class, as registerCustomTypes returns them.
template<typename Wrapper>
WrapperFactory factoryOf()
{
    return [](const OdString& name, qwxWindow& parent) { return std::make_unique<Wrapper>(name, parent); };
}

} // namespace dbr::test
