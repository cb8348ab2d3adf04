#include "contextmenu.h"

#include <qut/qtconversions.h>

#include <utility>

namespace dbr {

namespace {

const QString textType = QStringLiteral("text");
const QString subMenuType = QStringLiteral("submenu");
const QString separatorType = QStringLiteral("separator");

std::unique_ptr<qut::TreeItem<qut::MenuData>> entryOf(qut::MenuData data)
{
    auto entry = std::make_unique<qut::TreeItem<qut::MenuData>>();
    entry->data = std::move(data);
    return entry;
}

// Command code names its bitmaps after the 16-pixel resources; the popup wants
// the file. The prefix is cut by length alone, as every name carries it.
QString iconFile(const OdString& bitmapName)
{
    if (bitmapName.isEmpty())
        return QString();
    static const QString prefix = QStringLiteral("BMP_16_");
    return qut::toQt(bitmapName).mid(prefix.size()).toLower() + QStringLiteral(".png");
}

} // namespace

class ContextMenuPrivate
{
public:
    MenuItems items;
    dyncmd::IDynamicMenuCommandExecutor* executor = nullptr;
};

ContextMenu::ContextMenu(dyncmd::IDynamicMenuCommandExecutor* executor)
    : d(std::make_unique<ContextMenuPrivate>())
{
    d->executor = executor;
}

ContextMenu::~ContextMenu() = default;

void ContextMenu::addMenuItem(const OdString& text, int id, const OdString& description, const OdString& bitmapName,
                              bool enabled, bool checkable, bool checked)
{
    auto action = [executor = d->executor, id] {
        if (executor)
            executor->executeCommand(id);
    };
    d->items.push_back(entryOf(qut::createMenuItem(
        qut::toQt(text), std::move(action), textType, qut::toQt(description), iconFile(bitmapName),
        enabled ? qut::MenuData::Enabled : qut::MenuData::Disabled,
        checkable ? qut::MenuData::Checkable : qut::MenuData::NotCheckable,
        checked ? qut::MenuData::Checked : qut::MenuData::Unchecked)));
}

void ContextMenu::addMenuSeparator()
{
    d->items.push_back(entryOf(qut::createMenuSeparator()));
}

std::size_t ContextMenu::topLevelItemsCount() const
{
    return d->items.size();
}

std::size_t ContextMenu::totalItemsCount() const
{
    return getItemsCount(d->items);
}

std::unique_ptr<dyncmd::IDynamicMenu> ContextMenu::createSubMenu() const
{
    return std::make_unique<ContextMenu>(d->executor);
}

void ContextMenu::appendSubMenu(const OdString& text, std::unique_ptr<dyncmd::IDynamicMenu> subMenu,
                                const OdString& icon)
{
    auto* source = dynamic_cast<ContextMenu*>(subMenu.get());
    if (!source)
        return;
    auto entry = entryOf(qut::createMenuItem(qut::toQt(text), [] {}, subMenuType, QString(), qut::toQt(icon),
                                             qut::MenuData::Enabled, qut::MenuData::NotCheckable,
                                             qut::MenuData::Unchecked));
    MenuItems children;
    source->menu(children);
    for (auto& child : children) {
        child->parent = entry.get();
        entry->children.push_back(std::move(child));
    }
    d->items.push_back(std::move(entry));
}

void ContextMenu::menu(MenuItems& out)
{
    d->items.swap(out);
}

std::size_t ContextMenu::getItemsCount(const MenuItems& items)
{
    std::size_t count = items.size();
    for (const auto& item : items)
        count += getItemsCount(item->children);
    return count;
}

MenuItems buildContextMenu(dyncmd::MenuBuilder* builder,
                           const std::vector<AvSmartPtr<const dyncmd::DynamicCommandTarget>>&)
{
    MenuItems result;
    if (!builder)
        return result;
    ContextMenu menu(builder);
    builder->fillMenu(menu);
    menu.menu(result);
    // Builders end each group with a separator; the last one would trail.
    if (!result.empty() && result.back()->data.type == separatorType)
        result.pop_back();
    return result;
}

} // namespace dbr
