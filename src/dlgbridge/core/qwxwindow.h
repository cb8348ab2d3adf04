#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QString>
#include <QVariant>

#include <wx/colour.h>
#include <wx/gdicmn.h>
#include <wx/string.h>

#include <oda/OdString.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

class QObject;
class wxWindow;

namespace dbr {

class IEventHandler;
class IValidator;
class QmlChildList;
class qwxMenu;
class qwxSizeEvent;
class qwxSizer;
class qwxWindow;
struct QtControlModels;

// Makes the wrapper of one QML item: the item's object name and the host.
using WrapperFactory = std::function<std::unique_ptr<qwxWindow>(const OdString& name, qwxWindow& parent)>;
// Wrapper factories by QML type name.
using CustomTypes = std::map<QString, WrapperFactory>;

// Gives a wrapper class its type name: typeId() names the class itself,
// typeName() the dynamic type of an object; both are compared as text.
#define DBR_WRAPPER_TYPE(Class)                                                                                        \
    static QString typeId()                                                                                            \
    {                                                                                                                  \
        return QStringLiteral(#Class);                                                                                 \
    }                                                                                                                  \
    QString typeName() const override                                                                                  \
    {                                                                                                                  \
        return typeId();                                                                                               \
    }

// Root of every wrapper. A wrapper holds no widget: each access looks its QML
// item up by object name under root() and reads or writes a property of it.
class DLGBRIDGE_EXPORT qwxWindow
{
public:
    enum UseParentListIfNone {
        UseParentList = 0,
        OwnListOnly = 1,
    };

    qwxWindow();
    explicit qwxWindow(qwxWindow* parent);
    qwxWindow(const qwxWindow& other);
    qwxWindow& operator=(const qwxWindow& other);
    virtual ~qwxWindow();

    virtual void SetValidator(const IValidator& validator);
    virtual void SetBackgroundColour(const wxColour& colour);
    virtual void TransferDataToWindow();
    virtual void TransferDataFromWindow();
    virtual QString typeName() const = 0;
    virtual void Disable();
    virtual void Enable();
    virtual void Refresh(bool eraseBackground = true);
    virtual void Show();
    virtual void Hide();
    virtual void doEventTableInit();
    virtual void resyncToUI();
    virtual QString wrappedObjectName() const;
    virtual QString bindControlName() const;
    virtual QObject* root() const;
    virtual wxWindow* wx();
    virtual QtControlModels* models();
    virtual const QmlChildList* qmlChildren(UseParentListIfNone mode) const;
    virtual QmlChildList* qmlChildren(UseParentListIfNone mode);
    virtual CustomTypes registerCustomTypes();
    virtual void onCreateWindow();

    static QString typeId();

    // The property bridge.
    bool setQmlProperty(const std::string& name, QVariant value);
    QVariant getQmlProperty(const std::string& name) const;
    QObject* findObject() const;
    // The item of this wrapper, or null without a log line: for clean-up, where a vanished item is normal.
    QObject* findObjectIfAny() const;

    // Content loading, run on a host with its own child list: populate, then
    // resyncToUI, doEventTableInit and onCreateWindow, each for the host first
    // and then for every child in key order. False when m_eventTableLoaded is set.
    bool doLoadContent(QmlChildList& children);
    void loadEventTables(QmlChildList& children);
    void resyncToUI(QmlChildList& children);
    void resetEventTablesLoaded(QmlChildList& children);
    void resetEventTableLoaded();

    wxString GetName() const;
    qwxWindow* GetParent() const;
    void SetParent(qwxWindow* parent);
    qwxWindow* FindWindow(const OdString& name) const;

    void Enable(bool enable);
    bool IsEnabled() const;
    void Show(bool show);
    bool IsShown() const;
    void SetFocus();
    // Defined with qwxMenu, in the room above core.
    void PopupMenu(qwxMenu* menu, const wxPoint& position);

    wxColour GetBackgroundColour() const;

    // wx operations without meaning over QML: they log and answer neutrally.
    qwxSizer* GetSizer() const;
    void PopEventHandler(bool deleteHandler = false);
    // Takes ownership of handler; it never receives an event.
    void PushEventHandler(IEventHandler* handler);
    long GetWindowStyle() const;
    void SetWindowStyle(long style);
    wxPoint ScreenToClient(const wxPoint& point) const;
    void Layout();
    void OnSize(qwxSizeEvent& event);

protected:
    QObject* findObject(const QString& name) const;

    // Dialog code sets this in its doEventTableInit; while set, content loading is refused.
    bool m_eventTableLoaded = false;

private:
    // The item of this wrapper, or null after logging why the property can't be accessed.
    QObject* findItemToAccess(const char* access, const std::string& property) const;
    static QObject* findObjectUnder(QObject& top, const QString& name);

    qwxWindow* m_parent = nullptr;
};

DLGBRIDGE_EXPORT QString getWindowTypeName(const qwxWindow& window);
DLGBRIDGE_EXPORT void negociateSpacerSize(qwxWindow* window, size_t size, bool show);
DLGBRIDGE_EXPORT void forceLayoutRecalculation(qwxWindow* window);

} // namespace dbr
