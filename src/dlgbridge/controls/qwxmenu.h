#pragma once

#include <dlgbridge/core/qwxcontrol.h>
#include <dlgbridge/core/qwxevent.h>

#include <QString>

#include <wx/gdicmn.h>
#include <wx/string.h>

#include <functional>
#include <memory>

namespace dbr {

class qwxMenu;
class qwxMenuItemPrivate;
class qwxMenuPrivate;

// One named entry of a menu, made by the menu; its object name is the
// identifier it was appended with.
class DLGBRIDGE_EXPORT qwxMenuItem : public qwxControl
{
public:
    qwxMenuItem(const OdString& name, qwxWindow& parent);
    ~qwxMenuItem() override;

    DBR_WRAPPER_TYPE(qwxMenuItem)

    // Enable(bool), inherited, sets the entry's "enabled".
    qwxMenu* GetSubMenu();
    // Only the newest handler stays bound.
    void bind(std::function<void(qwxCommandEvent&)> handler);

private:
    std::unique_ptr<qwxMenuItemPrivate> const d;
};

// A menu drawn by the QML "WxConvMenu". QML holds the visible entries; the
// wrapper holds one item for each named entry it appended, since QML entries
// are reached by name. Entries the QML file declares itself stay unknown.
class DLGBRIDGE_EXPORT qwxMenu : public qwxControl
{
public:
    qwxMenu(const OdString& name, qwxWindow& parent);
    ~qwxMenu() override;

    DBR_WRAPPER_TYPE(qwxMenu)

    // The entry goes into parent's sub menu when parent's item is found, else into the menu itself.
    qwxMenuItem* Append(const wxString& identifier, const wxString& label, const qwxMenuItem* parent = nullptr);
    qwxMenuItem* AppendSubMenu(const wxString& identifier, const wxString& label);
    void AppendSeparator();
    // Separators don't count.
    int GetMenuItemCount() const;
    // The item wrappers go only when QML cleared its entries.
    void Clear();

    using qwxControl::Enable;
    // wx operations without meaning over QML: they log and answer neutrally.
    void Enable(const wxString& identifier, bool enable);
    void SetLabel(const wxString& identifier, const wxString& label);
    qwxMenuItem* FindItem(const wxString& identifier) const;

    // At the pointer for wxDefaultPosition, else at position.
    void open(const wxPoint& position);

    // id 8 is the menu event; the handler hears the item called itemName.
    void Bind(int id, std::function<void(qwxCommandEvent&)> handler, QString itemName);
    void doBind(int id, std::function<void(qwxCommandEvent&)> handler, const QString& itemName);

private:
    std::unique_ptr<qwxMenuPrivate> const d;
};

} // namespace dbr
