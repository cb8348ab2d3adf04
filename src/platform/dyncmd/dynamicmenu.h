#pragma once

#include <oda/OdRxObject.h>
#include <oda/OdString.h>

#include <cstddef>
#include <memory>

// Stand-in for the application's dynamic command layer: the interfaces through
// which command code describes a context menu and runs the chosen entry.
namespace dyncmd {

// Runs the command behind a menu id.
class IDynamicMenuCommandExecutor
{
public:
    virtual ~IDynamicMenuCommandExecutor() = default;
    virtual void executeCommand(int id) = 0;
};

// What command code fills. Sub menus come from createSubMenu() of the same menu.
class IDynamicMenu
{
public:
    virtual ~IDynamicMenu() = default;
    virtual void addMenuItem(const OdString& text, int id, const OdString& description, const OdString& bitmapName,
                             bool enabled, bool checkable, bool checked) = 0;
    virtual void addMenuSeparator() = 0;
    virtual std::size_t topLevelItemsCount() const = 0;
    virtual std::size_t totalItemsCount() const = 0;
    virtual std::unique_ptr<IDynamicMenu> createSubMenu() const = 0;
    virtual void appendSubMenu(const OdString& text, std::unique_ptr<IDynamicMenu> subMenu, const OdString& icon) = 0;
};

// Describes a menu and runs its entries' commands.
class MenuBuilder : public IDynamicMenuCommandExecutor
{
public:
    virtual void fillMenu(IDynamicMenu& menu) = 0;
};

// An object a command can act on, such as the entities under the cursor.
class DynamicCommandTarget : public OdRxObject
{
};

} // namespace dyncmd
