// The standard table from QML type to wrapper class.
#include <dlgbridge/cadmodels/qwxcolorcombobox.h>
#include <dlgbridge/cadmodels/qwxlinetypecombobox.h>
#include <dlgbridge/controls/qwxbitmapbutton.h>
#include <dlgbridge/controls/qwxbutton.h>
#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/controls/qwxcombobox.h>
#include <dlgbridge/controls/qwxgauge.h>
#include <dlgbridge/controls/qwxmenu.h>
#include <dlgbridge/controls/qwxnotebook.h>
#include <dlgbridge/controls/qwxradiobutton.h>
#include <dlgbridge/controls/qwxsearchctrl.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxstaticbitmap.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/controls/qwxtogglebutton.h>
#include <dlgbridge/core/wrapperkinds.h>
#include <dlgbridge/hosting/qwxpanel.h>
#include <dlgbridge/views/qsortinglistctrl.h>
#include <dlgbridge/views/qwxchecklistbox.h>
#include <dlgbridge/views/qwxlistctrl.h>
#include <dlgbridge/views/qwxtreectrl.h>

#include <QHash>
#include <QObject>

namespace dbr {

namespace {

template<typename Wrapper>
std::unique_ptr<qwxWindow> make(const QObject&, const OdString& name, qwxWindow& host)
{
    return std::make_unique<Wrapper>(name, host);
}

// An editable combo is a combo box, any other a choice.
std::unique_ptr<qwxWindow> makeCombo(const QObject& item, const OdString& name, qwxWindow& host)
{
    if (item.property("editable").toBool())
        return std::make_unique<qwxComboBox>(name, host);
    return std::make_unique<qwxChoice>(name, host);
}

// A list with check boxes is a check list even when it sorts.
std::unique_ptr<qwxWindow> makeList(const QObject& item, const OdString& name, qwxWindow& host)
{
    if (item.property("checkableItems").toBool())
        return std::make_unique<qwxCheckListBox>(name, host);
    if (item.property("sortingEnabled").toBool())
        return std::make_unique<qSortingListCtrl>(name, host);
    return std::make_unique<qwxListCtrl>(name, host);
}

std::unique_ptr<qwxWindow> makeTableView(const QObject& item, const OdString& name, qwxWindow& host)
{
    if (!item.property("checkableColumns").toList().isEmpty())
        return std::make_unique<qwxCheckListBox>(name, host);
    return std::make_unique<qwxListCtrl>(name, host);
}

QHash<QString, StandardWrapperFactory> makeTable()
{
    return {
        {QStringLiteral("TextField"), &make<qwxTextCtrl>},
        {QStringLiteral("ScrollableTextArea"), &make<qwxTextCtrl>},
        {QStringLiteral("TextArea"), &make<qwxTextCtrl>},
        {QStringLiteral("CheckBox"), &make<qwxCheckBox>},
        {QStringLiteral("Button"), &make<qwxButton>},
        {QStringLiteral("ButtonOutline"), &make<qwxButton>},
        {QStringLiteral("RoundButton"), &make<qwxButton>},
        {QStringLiteral("IconButton"), &make<qwxButton>},
        {QStringLiteral("GhostButton"), &make<qwxButton>},
        {QStringLiteral("Label"), &make<qwxStaticText>},
        {QStringLiteral("ToggleButton"), &make<qwxToggleButton>},
        {QStringLiteral("RadioButton"), &make<qwxRadioButton>},
        {QStringLiteral("SpinBox"), &make<qwxSpinCtrl>},
        {QStringLiteral("Image"), &make<qwxStaticBitmap>},
        {QStringLiteral("ImageAV"), &make<qwxStaticBitmap>},
        {QStringLiteral("SearchField"), &make<qwxSearchCtrl>},
        {QStringLiteral("ImageButton"), &make<qwxBitmapButton>},
        {QStringLiteral("TabBar"), &make<qwxNotebook>},
        {QStringLiteral("TreeViewAV"), &make<qwxTreeCtrl>},
        {QStringLiteral("SingleSelListView"), &makeList},
        {QStringLiteral("WxConvTableView"), &makeTableView},
        {QStringLiteral("QQuickTableView"), &make<qwxListCtrl>},
        {QStringLiteral("Panel"), &make<qwxPanel>},
        {QStringLiteral("Pane"), &make<qwxPanel>},
        {QStringLiteral("ComboBox"), &makeCombo},
        {QStringLiteral("LineTypeComboBox"), &make<qwxLineTypeComboBox>},
        {QStringLiteral("ColorComboBox"), &make<qwxColorComboBox>},
        {QStringLiteral("ProgressBar"), &make<qwxGauge>},
        {QStringLiteral("WxConvMenu"), &make<qwxMenu>},
    };
}

} // namespace

StandardWrapperFactory standardWrapperFactory(const QString& type)
{
    static const QHash<QString, StandardWrapperFactory> table = makeTable();
    return table.value(type);
}

} // namespace dbr
