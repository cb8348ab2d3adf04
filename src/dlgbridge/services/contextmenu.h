#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/views/treeitem.h>

#include <QtGlobal>

#include <dyncmd/dynamicmenu.h>
#include <qut/menudata.h>
#include <tdx/AvSmartPtr.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace dbr {

class ContextMenuPrivate;

using MenuItems = std::vector<std::unique_ptr<qut::TreeItem<qut::MenuData>>>;

// Collects what command code describes through IDynamicMenu into the tree of
// entries that a QML popup shows. Choosing an entry runs its command id on the
// executor, which must outlive the entries; the menu itself need not.
class DLGBRIDGE_EXPORT ContextMenu : public dyncmd::IDynamicMenu
{
public:
    // A null executor gives entries that do nothing.
    explicit ContextMenu(dyncmd::IDynamicMenuCommandExecutor* executor);
    ~ContextMenu() override;

    // bitmapName "BMP_16_OPEN" gives the icon file "open.png".
    void addMenuItem(const OdString& text, int id, const OdString& description, const OdString& bitmapName,
                     bool enabled, bool checkable, bool checked) override;
    void addMenuSeparator() override;
    std::size_t topLevelItemsCount() const override;
    std::size_t totalItemsCount() const override;
    std::unique_ptr<dyncmd::IDynamicMenu> createSubMenu() const override;
    // Takes the entries of a menu made by createSubMenu(); any other kind of
    // menu adds nothing.
    void appendSubMenu(const OdString& text, std::unique_ptr<dyncmd::IDynamicMenu> subMenu,
                       const OdString& icon) override;

    // Swaps the entries with out; how a caller takes the result away.
    void menu(MenuItems& out);

private:
    Q_DISABLE_COPY(ContextMenu)

    static std::size_t getItemsCount(const MenuItems& items);

    std::unique_ptr<ContextMenuPrivate> const d;
};

// The entries builder describes, without a trailing separator at the top
// level. The targets are the builder's business; they are not read here.
DLGBRIDGE_EXPORT MenuItems
buildContextMenu(dyncmd::MenuBuilder* builder,
                 const std::vector<AvSmartPtr<const dyncmd::DynamicCommandTarget>>& targets);

} // namespace dbr
