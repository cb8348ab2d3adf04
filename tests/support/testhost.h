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
    explicit TestHost(QObject* root = nullptr, const QString& name = QStringLiteral("DialogAV"));
    ~TestHost() override;

    static QString typeId();
    QString typeName() const override;
    QString wrappedObjectName() const override;
    QObject* root() const override;
    const QmlChildList* qmlChildren(UseParentListIfNone mode) const override;
    QmlChildList* qmlChildren(UseParentListIfNone mode) override;
    CustomTypes registerCustomTypes() override;

    void setRoot(QObject* root) { m_root = root; }
    void setCustomTypes(CustomTypes types) { m_customTypes = std::move(types); }
    QmlChildList& list() { return m_list; }
    // Populates the list from the current root.
    void populate();

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

    static QString typeId();
    QString typeName() const override;
};

// A factory for the given wrapper class, as registerCustomTypes returns them.
template<typename Wrapper>
WrapperFactory factoryOf()
{
    return [](const OdString& name, qwxWindow& parent) { return std::make_unique<Wrapper>(name, parent); };
}

} // namespace dbr::test
