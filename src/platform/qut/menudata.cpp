#include "menudata.h"

#include <utility>

namespace qut {

MenuData createMenuItem(const QString& text, std::function<void()> action, QString type, const QString& description,
                        const QString& icon, MenuData::EEnabled enabled, MenuData::ECheckable checkable,
                        MenuData::EChecked checked)
{
    MenuData data;
    data.text = text;
    data.action = std::move(action);
    data.type = std::move(type);
    data.description = description;
    data.icon = icon;
    data.enabled = enabled;
    data.checkable = checkable;
    data.checked = checked;
    return data;
}

MenuData createMenuSeparator()
{
    return createMenuItem(QString(), [] {}, QStringLiteral("separator"), QString(), QString(), MenuData::Disabled,
                          MenuData::NotCheckable, MenuData::Unchecked);
}

} // namespace qut
