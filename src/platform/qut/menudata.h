#pragma once

#include <QString>

#include <functional>

// Stand-in for the application's description of one context menu entry, which
// its QML popup shows.
namespace qut {

struct MenuData
{
    // In all three, 0 means yes, as the application's menu layer counts them.
    enum EEnabled { Enabled = 0, Disabled = 1 };
    enum ECheckable { Checkable = 0, NotCheckable = 1 };
    enum EChecked { Checked = 0, Unchecked = 1 };

    QString text;
    std::function<void()> action;
    // "text", "submenu" or "separator".
    QString type;
    QString description;
    QString icon;
    EEnabled enabled = Enabled;
    ECheckable checkable = NotCheckable;
    EChecked checked = Unchecked;
};

MenuData createMenuItem(const QString& text, std::function<void()> action, QString type, const QString& description,
                        const QString& icon, MenuData::EEnabled enabled, MenuData::ECheckable checkable,
                        MenuData::EChecked checked);
// A disabled entry of type "separator" that does nothing.
MenuData createMenuSeparator();

} // namespace qut
