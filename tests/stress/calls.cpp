#include "calls.h"

#include "randomqml.h"
#include "rng.h"

#include <support/objectroles.h>

#include <dlgbridge/cadmodels/colormodel.h>
#include <dlgbridge/cadmodels/linetypemodel.h>
#include <dlgbridge/cadmodels/qwxcolorcombobox.h>
#include <dlgbridge/cadmodels/qwxlinetypecombobox.h>
#include <dlgbridge/controls/choicelistmodel.h>
#include <dlgbridge/controls/qwxbitmapbutton.h>
#include <dlgbridge/controls/qwxbutton.h>
#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/controls/qwxcombobox.h>
#include <dlgbridge/controls/qwxgauge.h>
#include <dlgbridge/controls/qwxmenu.h>
#include <dlgbridge/controls/qwximagelist.h>
#include <dlgbridge/controls/qwxnotebook.h>
#include <dlgbridge/controls/qwxradiobutton.h>
#include <dlgbridge/controls/qwxsearchctrl.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxstaticbitmap.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/controls/qwxtogglebutton.h>
#include <dlgbridge/core/ieventhandler.h>
#include <dlgbridge/core/ivalidator.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/hosting/qwxpanel.h>
#include <dlgbridge/views/qwxlistctrl.h>
#include <dlgbridge/views/qwxtreectrl.h>
#include <dlgbridge/views/qwxtreeevent.h>

#include <QAbstractItemModelTester>
#include <QObject>

#include <wx/bitmap.h>

#include <ca/CaApp.h>
#include <oda/OdDbDatabase.h>
#include <wx/event.h>
#include <wx/image.h>

#include <qut/qtconversions.h>
#include <qut/stringlistmodel.h>

#include <vector>

namespace dbr::stress {

namespace {

template<typename Window>
using Calls = std::vector<void (*)(Window&, const CallContext&)>;

wxString anyText(Rng& rng)
{
    return qut::wxFromQt(rng.text());
}

OdString anyName(Rng& rng)
{
    return qut::odFromQt(lookupName(rng));
}

wxArrayString anyTexts(Rng& rng)
{
    wxArrayString texts;
    for (int count = rng.below(4); count > 0; --count)
        texts.Add(anyText(rng));
    return texts;
}

wxBitmap anyBitmap(Rng& rng)
{
    if (rng.percent(20))
        return wxBitmap();
    wxImage image(1 + rng.below(8), 1 + rng.below(8));
    if (rng.percent(50))
        image.InitAlpha();
    return wxBitmap(image);
}

wxColour anyColour(Rng& rng)
{
    return rng.percent(20) ? wxColour() : wxColour(rng.below(256), rng.below(256), rng.below(256));
}

// A validator whose transfers read its control, as dialog code's do.
class ReadingValidator : public IValidator
{
public:
    bool TransferToWindow() override { return read(); }
    bool TransferFromWindow() override { return read(); }
    IValidator* clone() const override { return new ReadingValidator(*this); }

private:
    bool read() const { return control() && control()->IsShown(); }
};

// Every list model a wrapper hands to QML is checked while it changes; the
// tester lives as long as the model.
void watch(QAbstractItemModel& model)
{
    if (!model.findChild<QAbstractItemModelTester*>())
        new QAbstractItemModelTester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal, &model);
}

template<typename Window>
const Calls<Window>& callsOf();

template<>
const Calls<qwxWindow>& callsOf()
{
    static const Calls<qwxWindow> calls{
        [](qwxWindow& w, const CallContext& c) { w.Enable(c.rng.percent(50)); },
        [](qwxWindow& w, const CallContext&) { w.Disable(); },
        [](qwxWindow& w, const CallContext& c) { w.Show(c.rng.percent(50)); },
        [](qwxWindow& w, const CallContext&) { w.Hide(); },
        [](qwxWindow& w, const CallContext&) { (void)(w.IsShown() && w.IsEnabled()); },
        [](qwxWindow& w, const CallContext&) { w.SetFocus(); },
        [](qwxWindow& w, const CallContext& c) { w.SetBackgroundColour(anyColour(c.rng)); },
        [](qwxWindow& w, const CallContext&) { w.GetBackgroundColour(); },
        [](qwxWindow& w, const CallContext&) {
            w.GetName();
            w.typeName();
            w.bindControlName();
        },
        [](qwxWindow& w, const CallContext& c) { w.FindWindow(anyName(c.rng)); },
        [](qwxWindow& w, const CallContext&) { w.TransferDataToWindow(); },
        [](qwxWindow& w, const CallContext&) { w.TransferDataFromWindow(); },
        [](qwxWindow& w, const CallContext&) { w.SetValidator(ReadingValidator()); },
        [](qwxWindow& w, const CallContext& c) { w.Refresh(c.rng.percent(50)); },
        [](qwxWindow& w, const CallContext&) {
            w.findObject();
            w.models();
            w.wx();
        },
        [](qwxWindow& w, const CallContext& c) {
            w.qmlChildren(c.rng.percent(50) ? qwxWindow::UseParentList : qwxWindow::OwnListOnly);
        },
        [](qwxWindow& w, const CallContext&) {
            w.GetSizer();
            w.GetWindowStyle();
            w.SetWindowStyle(-1);
            w.ScreenToClient(wxPoint(-1, -1));
            w.Layout();
        },
        [](qwxWindow& w, const CallContext& c) {
            w.PushEventHandler(c.rng.percent(50) ? new IEventHandler : nullptr);
            w.PopEventHandler(true);
        },
        [](qwxWindow& w, const CallContext& c) {
            negociateSpacerSize(c.rng.percent(10) ? nullptr : &w, 3, c.rng.percent(50));
            forceLayoutRecalculation(&w);
            getWindowTypeName(w);
        },
        [](qwxWindow& w, const CallContext& c) {
            static const std::vector<std::string> names{
                "text", "checked", "currentIndex", "model", "nothing", "parent", "visible", "", "objectName"};
            const std::vector<QVariant> values{QVariant(), QVariant(c.rng.index()), QVariant(c.rng.text()),
                                               QVariant(QStringList{"p", "q"}), QVariant(true)};
            const std::string& name = c.rng.pick(names);
            if (c.rng.percent(50))
                w.setQmlProperty(name, c.rng.pick(values));
            else
                w.getQmlProperty(name);
        },
    };
    return calls;
}

template<>
const Calls<qwxControl>& callsOf()
{
    static const Calls<qwxControl> calls{
        [](qwxControl& w, const CallContext&) { w.GetValidator(); },
        [](qwxControl& w, const CallContext&) { w.GetContainingSizer(); },
    };
    return calls;
}

template<>
const Calls<qwxTextCtrl>& callsOf()
{
    static const Calls<qwxTextCtrl> calls{
        [](qwxTextCtrl& w, const CallContext& c) { w.SetValue(anyText(c.rng)); },
        [](qwxTextCtrl& w, const CallContext& c) { w.ChangeValue(anyText(c.rng)); },
        [](qwxTextCtrl& w, const CallContext& c) { w.SetSelection(c.rng.index(), c.rng.index()); },
        [](qwxTextCtrl& w, const CallContext&) {
            w.GetValue();
            w.GetStringSelection();
            w.GetInsertionPoint();
            w.GetLastPosition();
            w.IsModified();
        },
        [](qwxTextCtrl& w, const CallContext& c) {
            long from = 0;
            long to = 0;
            w.GetSelection(c.rng.percent(30) ? nullptr : &from, c.rng.percent(30) ? nullptr : &to);
        },
        [](qwxTextCtrl& w, const CallContext& c) { w.SetInsertionPoint(c.rng.index()); },
        [](qwxTextCtrl& w, const CallContext& c) { w.ShowPosition(c.rng.index()); },
        [](qwxTextCtrl& w, const CallContext& c) {
            const int type = c.rng.percent(60) ? int(wxEVT_KILL_FOCUS) : int(wxEVT_SET_FOCUS);
            w.Connect(type, c.handler<qwxFocusEvent>());
        },
    };
    return calls;
}

template<>
const Calls<qwxSearchCtrl>& callsOf()
{
    static const Calls<qwxSearchCtrl> calls{
        [](qwxSearchCtrl& w, const CallContext& c) { w.SetDescriptiveText(anyText(c.rng)); },
        [](qwxSearchCtrl& w, const CallContext& c) { w.SetValue(anyText(c.rng)); },
        [](qwxSearchCtrl& w, const CallContext& c) { w.ChangeValue(anyText(c.rng)); },
        [](qwxSearchCtrl& w, const CallContext&) { w.GetValue(); },
    };
    return calls;
}

template<>
const Calls<qwxCheckBox>& callsOf()
{
    static const Calls<qwxCheckBox> calls{
        [](qwxCheckBox& w, const CallContext& c) { w.SetValue(c.rng.percent(50)); },
        [](qwxCheckBox& w, const CallContext&) { (void)(w.GetValue() && w.IsChecked()); },
    };
    return calls;
}

template<>
const Calls<qwxRadioButton>& callsOf()
{
    static const Calls<qwxRadioButton> calls{
        [](qwxRadioButton& w, const CallContext& c) { w.SetValue(c.rng.percent(50)); },
        [](qwxRadioButton& w, const CallContext&) { w.GetValue(); },
    };
    return calls;
}

template<>
const Calls<qwxButton>& callsOf()
{
    static const Calls<qwxButton> calls{
        [](qwxButton& w, const CallContext& c) { w.SetLabel(anyText(c.rng)); },
    };
    return calls;
}

template<>
const Calls<qwxBitmapButton>& callsOf()
{
    static const Calls<qwxBitmapButton> calls{
        [](qwxBitmapButton& w, const CallContext& c) { w.setBitmap(anyBitmap(c.rng)); },
    };
    return calls;
}

template<>
const Calls<qwxStaticText>& callsOf()
{
    static const Calls<qwxStaticText> calls{
        [](qwxStaticText& w, const CallContext& c) { w.SetLabel(anyText(c.rng)); },
        [](qwxStaticText& w, const CallContext&) { w.GetLabel(); },
        [](qwxStaticText& w, const CallContext& c) { w.SetForegroundColour(anyColour(c.rng)); },
    };
    return calls;
}

template<>
const Calls<qwxToggleButton>& callsOf()
{
    static const Calls<qwxToggleButton> calls{
        [](qwxToggleButton& w, const CallContext& c) { w.SetActiveChoice(c.rng.index()); },
        [](qwxToggleButton& w, const CallContext&) { w.GetActiveChoice(); },
    };
    return calls;
}

template<>
const Calls<qwxSpinCtrl>& callsOf()
{
    static const Calls<qwxSpinCtrl> calls{
        [](qwxSpinCtrl& w, const CallContext& c) { w.SetValue(c.rng.index()); },
        [](qwxSpinCtrl& w, const CallContext&) { w.GetValue(); },
    };
    return calls;
}

template<>
const Calls<qwxStaticBitmap>& callsOf()
{
    static const Calls<qwxStaticBitmap> calls{
        [](qwxStaticBitmap& w, const CallContext& c) { w.setBitmap(anyBitmap(c.rng)); },
        [](qwxStaticBitmap& w, const CallContext& c) { w.setIcon(anyText(c.rng)); },
    };
    return calls;
}

template<>
const Calls<qwxGauge>& callsOf()
{
    static const Calls<qwxGauge> calls{
        [](qwxGauge& w, const CallContext& c) { w.SetRange(c.rng.index()); },
        [](qwxGauge& w, const CallContext& c) { w.SetValue(c.rng.index()); },
        [](qwxGauge& w, const CallContext&) { (void)(w.GetValue() + w.GetRange()); },
    };
    return calls;
}

template<>
const Calls<qwxNotebook>& callsOf()
{
    static const Calls<qwxNotebook> calls{
        [](qwxNotebook& w, const CallContext&) { w.GetSelection(); },
        [](qwxNotebook& w, const CallContext& c) { w.SetSelection(c.rng.index()); },
        [](qwxNotebook& w, const CallContext& c) { w.HidePage(c.rng.index()); },
        [](qwxNotebook& w, const CallContext& c) {
            auto images = std::make_shared<qwxImageList>(8, 8);
            images->Add(anyBitmap(c.rng));
            w.SetImageList(c.rng.percent(20) ? nullptr : images);
        },
        [](qwxNotebook& w, const CallContext& c) { w.SetPageImage(c.rng.index(), c.rng.index()); },
    };
    return calls;
}

// A node of the tree, the root included; ids of nodes that are gone are no input a caller can have.
qwxTreeItemId anyNode(qwxTreeCtrl& tree, Rng& rng)
{
    std::vector<qwxTreeItemId> nodes{tree.GetRootItem()};
    tree.GetModel()->traverseTree([&nodes](const TreeCtrlModelBase::Item& item) {
        nodes.emplace_back(const_cast<TreeCtrlModelBase::Item*>(&item));
        return qut::TreeWalk::Continue;
    });
    return rng.percent(10) ? qwxTreeItemId() : rng.pick(nodes);
}

template<>
const Calls<qwxTreeCtrl>& callsOf()
{
    using T = qwxTreeCtrl;
    using C = CallContext;
    static const Calls<qwxTreeCtrl> calls{
        [](T& w, const C& c) { w.AppendItem(anyNode(w, c.rng), anyText(c.rng)); },
        [](T& w, const C& c) {
            w.AppendItem(anyNode(w, c.rng), anyText(c.rng), -1, -1, nullptr, {}, T::ExpandWhenShown);
        },
        [](T& w, const C& c) { w.InsertItem(anyNode(w, c.rng), c.rng.index(), anyText(c.rng)); },
        [](T& w, const C& c) { w.Delete(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.MoveItem(anyNode(w, c.rng), anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.SetItemText(anyNode(w, c.rng), anyText(c.rng)); },
        [](T& w, const C& c) { w.SetItemBold(anyNode(w, c.rng), c.rng.percent(50)); },
        [](T& w, const C& c) { w.SetEditOnCreation(anyNode(w, c.rng), true); },
        [](T& w, const C& c) { w.Expand(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.Collapse(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.Toggle(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.ExpandAll(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.CollapseAll(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.EditLabel(anyNode(w, c.rng)); },
        [](T& w, const C& c) { w.SelectItem(anyNode(w, c.rng), c.rng.percent(50)); },
        [](T& w, const C& c) { selectInTree(&w, anyText(c.rng) + "|" + anyText(c.rng)); },
        [](T& w, const C&) {
            std::vector<qwxTreeItemId> selected;
            w.GetSelections(selected);
            w.GetFocusedItem();
        },
        [](T& w, const C&) { w.clearSelections(); },
        [](T& w, const C&) { w.setIsSorted(); },
        [](T& w, const C&) { w.resyncToUI(); },
        [](T& w, const C&) { w.DeleteAllItems(); },
        [](T& w, const C& c) {
            qwxTreeItemIdValue cookie;
            for (qwxTreeItemId child = w.GetFirstChild(anyNode(w, c.rng), cookie); child.IsOk();
                 child = w.GetNextChild(child, cookie))
                w.GetItemParent(child);
        },
    };
    return calls;
}

template<>
const Calls<qwxListCtrl>& callsOf()
{
    using T = qwxListCtrl;
    using C = CallContext;
    static const Calls<qwxListCtrl> calls{
        [](T& w, const C& c) { w.InsertItem(c.rng.index(), anyText(c.rng)); },
        [](T& w, const C& c) { w.Append(anyText(c.rng), new qwxStringClientData(anyText(c.rng))); },
        [](T& w, const C& c) { w.SetItem(c.rng.index(), c.rng.index(), anyText(c.rng)); },
        [](T& w, const C& c) { w.SetItemData(c.rng.index(), c.rng.index(), std::make_unique<qwxClientData>()); },
        [](T& w, const C& c) { w.ExtractItemData(c.rng.index(), c.rng.index()); },
        [](T& w, const C& c) { w.InsertColumn(c.rng.index(), anyText(c.rng)); },
        [](T& w, const C& c) { w.DeleteItem(c.rng.index()); },
        [](T& w, const C& c) { w.moveRow(c.rng.index(), c.rng.index()); },
        [](T& w, const C& c) { w.Check(c.rng.index(), c.rng.percent(50)); },
        [](T& w, const C& c) { w.setEnabled(c.rng.index(), c.rng.percent(50)); },
        [](T& w, const C& c) { w.SetSelection(c.rng.index()); },
        [](T& w, const C& c) { w.SetItemState(c.rng.index(), 4, 4); },
        [](T& w, const C&) { w.GetNextItem(-1); },
        [](T& w, const C&) { w.GetSelections(); },
        [](T& w, const C& c) { w.EnsureVisible(c.rng.index()); },
        [](T& w, const C& c) { w.setSearchString(anyText(c.rng)); },
        [](T& w, const C&) { w.Clear(); },
        [](T& w, const C&) { w.DeleteAllItems(); },
        [](T& w, const C& c) { w.GetClientObject(c.rng.index(), c.rng.index()); },
    };
    return calls;
}

template<>
const Calls<qwxChoice>& callsOf()
{
    static const Calls<qwxChoice> calls{
        [](qwxChoice& w, const CallContext& c) { w.Select(c.rng.index()); },
        [](qwxChoice& w, const CallContext& c) { w.SetSelection(c.rng.index()); },
        [](qwxChoice& w, const CallContext&) {
            w.GetSelection();
            w.GetStringSelection();
            w.GetValue();
            w.GetStrings();
            w.GetCount();
        },
        [](qwxChoice& w, const CallContext& c) { w.SetString(c.rng.index(), anyText(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.FindString(anyText(c.rng)); },
        [](qwxChoice& w, const CallContext&) { w.Clear(); },
        [](qwxChoice& w, const CallContext& c) { w.Append(anyTexts(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.Append(anyText(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.AppendString(anyText(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.Insert(c.rng.index(), anyTexts(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.Insert(c.rng.index(), anyText(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.InsertString(c.rng.index(), anyText(c.rng)); },
        [](qwxChoice& w, const CallContext& c) { w.Delete(c.rng.index()); },
        [](qwxChoice& w, const CallContext& c) { w.Set(anyTexts(c.rng)); },
        [](qwxChoice& w, const CallContext& c) {
            w.Append(anyText(c.rng), c.rng.percent(20) ? nullptr : new qwxStringClientData("data"));
        },
        [](qwxChoice& w, const CallContext& c) { w.Insert(anyText(c.rng), c.rng.index(), new VoidClientData(&w)); },
        [](qwxChoice& w, const CallContext& c) { w.GetClientObject(c.rng.index()); },
    };
    return calls;
}

template<>
const Calls<qwxComboBox>& callsOf()
{
    static const Calls<qwxComboBox> calls{
        [](qwxComboBox& w, const CallContext&) { w.GetValue(); },
        [](qwxComboBox& w, const CallContext& c) { w.SetValue(anyText(c.rng)); },
        [](qwxComboBox& w, const CallContext&) { w.GetSelection(); },
        [](qwxComboBox& w, const CallContext& c) { w.Select(c.rng.index()); },
        [](qwxComboBox& w, const CallContext& c) { w.SetSelection(c.rng.index()); },
        [](qwxComboBox& w, const CallContext& c) { w.FindString(anyText(c.rng), c.rng.percent(50)); },
        [](qwxComboBox& w, const CallContext& c) { w.Append(anyText(c.rng)); },
        [](qwxComboBox& w, const CallContext& c) { w.AppendString(anyText(c.rng)); },
        [](qwxComboBox& w, const CallContext& c) {
            wxSortedArrayString texts;
            for (const wxString& text : anyTexts(c.rng))
                texts.Add(text);
            w.Append(texts);
        },
        [](qwxComboBox& w, const CallContext&) { w.Clear(); },
        [](qwxComboBox& w, const CallContext& c) { w.Set(anyTexts(c.rng)); },
    };
    return calls;
}

// An entry is reached only through what Append returns, so a call builds and uses it at once.
template<>
const Calls<qwxMenu>& callsOf()
{
    static const Calls<qwxMenu> calls{
        [](qwxMenu& w, const CallContext& c) {
            qwxMenuItem* sub = c.rng.percent(50) ? w.AppendSubMenu(anyText(c.rng), anyText(c.rng)) : nullptr;
            if (qwxMenuItem* item = w.Append(qut::wxFromQt(lookupName(c.rng)), anyText(c.rng), sub)) {
                item->bind(c.handler<qwxCommandEvent>());
                item->Enable(c.rng.percent(70));
                if (QObject* entry = item->findObjectIfAny())
                    QMetaObject::invokeMethod(entry, "trigger");
            }
        },
        [](qwxMenu& w, const CallContext&) { w.AppendSeparator(); },
        [](qwxMenu& w, const CallContext&) { w.Clear(); },
        [](qwxMenu& w, const CallContext& c) { w.open(c.rng.percent(50) ? wxDefaultPosition : wxPoint(1, 2)); },
        [](qwxMenu& w, const CallContext& c) {
            w.Bind(c.rng.percent(80) ? 8 : c.rng.index(), c.handler<qwxCommandEvent>(), lookupName(c.rng));
        },
        [](qwxMenu& w, const CallContext& c) {
            w.Enable(anyText(c.rng), false);
            w.SetLabel(anyText(c.rng), anyText(c.rng));
            (void)(w.FindItem(anyText(c.rng)) || w.GetMenuItemCount());
        },
    };
    return calls;
}

OdCmColor anyColor(Rng& rng)
{
    OdCmColor color;
    switch (rng.below(4)) {
    case 0: color.setColorIndex(std::uint16_t(rng.below(258))); break;
    case 1: color.setRGB(std::uint8_t(rng.below(3)), 0, std::uint8_t(rng.below(3))); break;
    case 2: color.setColor(std::uint32_t(rng.index())); break;
    default: color.setColorMethod(OdCmColor::kNone); break;
    }
    return color;
}

// The shared model is the dialog's, so a call on it stands for any of its combos.
template<>
const Calls<qwxColorComboBox>& callsOf()
{
    static const Calls<qwxColorComboBox> calls{
        [](qwxColorComboBox& w, const CallContext& c) { w.setColor(anyColor(c.rng)); },
        [](qwxColorComboBox& w, const CallContext& c) { w.setColor(static_cast<unsigned long>(c.rng.index())); },
        [](qwxColorComboBox& w, const CallContext&) { w.color(); },
        [](qwxColorComboBox& w, const CallContext& c) {
            if (ColorModel* model = w.model())
                model->setIsVaries(c.rng.percent(50));
        },
        [](qwxColorComboBox& w, const CallContext& c) {
            if (ColorModel* model = w.model())
                model->onClicked(c.rng.percent(50) ? model->rowCount() - 1 : c.rng.index());
        },
        [](qwxColorComboBox& w, const CallContext& c) {
            if (ColorModel* model = w.model())
                model->setColor(anyColor(c.rng));
        },
    };
    return calls;
}

template<>
const Calls<qwxLineTypeComboBox>& callsOf()
{
    static const Calls<qwxLineTypeComboBox> calls{
        [](qwxLineTypeComboBox& w, const CallContext& c) {
            OdDbDatabase* database = ca::curDb();
            const OdArray<OdDbObjectId> ids = database ? database->linetypeIds() : OdArray<OdDbObjectId>();
            w.setSelection(ids.isEmpty() || c.rng.percent(20) ? OdDbObjectId::kNull
                                                              : ids[unsigned(c.rng.below(int(ids.size())))]);
        },
        [](qwxLineTypeComboBox& w, const CallContext&) { w.getLinetype(); },
        [](qwxLineTypeComboBox& w, const CallContext& c) {
            if (LineTypeModel* model = w.model(); model && model->rowCount() > 0)
                model->setCurrentIndexOrLoad(c.rng.percent(50) ? model->rowCount() - 1 : c.rng.index());
        },
        [](qwxLineTypeComboBox& w, const CallContext& c) {
            if (LineTypeModel* model = w.model()) {
                model->setIsVarious(c.rng.percent(50));
                model->resetLineTypes(c.rng.percent(80));
            }
        },
        [](qwxLineTypeComboBox& w, const CallContext& c) {
            if (LineTypeModel* model = w.model(); model && model->getLineType(c.rng.index()))
                const_cast<LineTypeObject*>(model->getLineType(c.rng.index()))
                    ->lineTypePreview(c.rng.below(40), c.rng.below(12));
        },
    };
    return calls;
}

// Reparenting is left to the run, which knows who outlives whom.
template<>
const Calls<qwxPanel>& callsOf()
{
    static const Calls<qwxPanel> calls{
        [](qwxPanel& w, const CallContext& c) { w.init(lookupName(c.rng)); },
        [](qwxPanel& w, const CallContext& c) { wut::loadPanel(&w, lookupName(c.rng)); },
        [](qwxPanel& w, const CallContext&) { w.root(); },
    };
    return calls;
}

void watchModelOf(qwxWindow& window)
{
    if (auto* choice = dynamic_cast<qwxChoice*>(&window))
        watch(choice->model());
    else if (auto* combo = dynamic_cast<qwxComboBox*>(&window))
        watch(combo->model());
    else if (auto* colors = dynamic_cast<qwxColorComboBox*>(&window); colors && colors->model())
        test::attachModelTester(*colors->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    else if (auto* lineTypes = dynamic_cast<qwxLineTypeComboBox*>(&window); lineTypes && lineTypes->model())
        test::attachModelTester(*lineTypes->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
}

template<typename Window>
bool callAs(qwxWindow& window, const CallContext& context)
{
    auto* typed = dynamic_cast<Window*>(&window);
    if (!typed)
        return false;
    context.rng.pick(callsOf<Window>())(*typed, context);
    return true;
}

template<typename Window>
void lookUpAs(QmlChildList& list, const OdString& name)
{
    list.child<Window>(name);
}

// The wrapper kinds: a call goes to the first the window is.
template<typename... Kinds>
struct KindList
{
    static bool call(qwxWindow& window, const CallContext& context) { return (callAs<Kinds>(window, context) || ...); }

    static void lookUp(QmlChildList& list, const OdString& name, Rng& rng)
    {
        static const std::vector<void (*)(QmlChildList&, const OdString&)> lookups{&lookUpAs<Kinds>...};
        rng.pick(lookups)(list, name);
    }
};

using WrapperKinds =
    KindList<qwxTextCtrl, qwxSearchCtrl, qwxCheckBox, qwxRadioButton, qwxButton, qwxBitmapButton, qwxStaticText,
             qwxToggleButton, qwxSpinCtrl, qwxStaticBitmap, qwxGauge, qwxNotebook, qwxChoice, qwxComboBox, qwxPanel,
             qwxMenu, qwxTreeCtrl, qwxListCtrl, qwxColorComboBox, qwxLineTypeComboBox>;

using Connection = void (*)(QmlChildList&, const OdString&, qwxWindow*, const CallContext&);

int anyDialogId(Rng& rng)
{
    static const std::vector<int> ids{5100, 5101, 5102, -1, 0, 5001, 12345};
    return rng.pick(ids);
}

const std::vector<Connection>& connections()
{
    using L = QmlChildList;
    using E = qwxCommandEvent;
    static const std::vector<Connection> table{
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToTextAcceptedEvent(n, c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) { l.connectToClickEvent(n, c.handler<E>()); },
        [](L& l, const OdString&, qwxWindow*, const CallContext& c) {
            l.connectToClickEvent(anyDialogId(c.rng), c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToRadioButtonEvent(n, c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToToggleButtonEvent(n, c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) { l.connectToCheckBoxEvent(n, c.handler<E>()); },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToNotebookPageChangedEvent(n, c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) { l.connectToMenuEvent(n, c.handler<E>()); },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) { l.connectToTextEvent(n, c.handler<E>()); },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) { l.connectToChoiceEvent(n, c.handler<E>()); },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) { l.connectToComboEvent(n, c.handler<E>()); },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToKeyPressedEvent(n, c.handler<qwxKeyEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToKeyReleasedEvent(n, c.handler<qwxKeyEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToContextMenuEvent(n, c.handler<qwxContextMenuEvent>());
        },
        [](L& l, const OdString&, qwxWindow* w, const CallContext& c) {
            if (w)
                l.connectToContextMenuEvent(*w, c.handler<qwxContextMenuEvent>());
        },
        [](L& l, const OdString&, qwxWindow* w, const CallContext& c) {
            if (w)
                l.connectToLeftDoubleClick(*w, c.handler<qwxMouseEvent>());
        },
        [](L& l, const OdString&, qwxWindow* w, const CallContext& c) {
            if (w)
                l.connectToSizeEvent(*w, c.handler<qwxSizeEvent>());
        },
        [](L& l, const OdString&, qwxWindow*, const CallContext& c) {
            l.connectToDlgResult(anyDialogId(c.rng), c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToTreeSelChangedEvent(n, c.handler<qwxTreeEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToLeftDoubleClick(n, c.handler<qwxTreeEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToTreeItemGetToolTip(n, c.handler<qwxTreeEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToEndLabelEdit(n, c.handler<qwxTreeEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToBeginLabelEdit(n, c.handler<qwxTreeEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToBeginDrag(n, c.handler<qwxDragDropEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToEndDrag(n, c.handler<qwxDragDropEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToListItemSelectedEvent(n, c.handler<qwxListEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToRightClick(n, c.handler<qwxListEvent>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToListBoxSelectedEvent(n, c.handler<E>());
        },
        [](L& l, const OdString& n, qwxWindow*, const CallContext& c) {
            l.connectToTableTextAcceptedEvent(n, c.handler<qwxGridEvent>());
        },
    };
    return table;
}

using ItemCall = void (*)(QObject&, Rng&);

template<typename... Arguments>
void invoke(QObject& item, const char* method, Arguments... arguments)
{
    QMetaObject::invokeMethod(&item, method, Qt::DirectConnection, arguments...);
}

// What a tree view's signal may carry: a row of its model, or nothing of the kind.
QVariant anyNodeArgument(QObject& item, Rng& rng)
{
    const auto* model = item.property("model").value<QAbstractItemModel*>();
    if (model && rng.percent(60))
        return QVariant::fromValue(model->index(rng.index(), 0));
    return rng.percent(50) ? QVariant(rng.index()) : QVariant();
}

} // namespace

void callWrapper(qwxWindow& window, const CallContext& context)
{
    watchModelOf(window);
    if (context.rng.percent(40) || !WrapperKinds::call(window, context)) {
        if (!context.rng.percent(10) || !callAs<qwxControl>(window, context))
            callAs<qwxWindow>(window, context);
    }
}

void lookUpTyped(QmlChildList& list, const OdString& name, Rng& rng)
{
    WrapperKinds::lookUp(list, name, rng);
}

void connectRandomly(QmlChildList& list, const OdString& name, qwxWindow* window, const CallContext& context)
{
    context.rng.pick(connections())(list, name, window, context);
}

void emitOnItem(QObject& item, Rng& rng)
{
    static const std::vector<ItemCall> emits{
        [](QObject& i, Rng&) { invoke(i, "clicked"); },
        [](QObject& i, Rng&) { invoke(i, "accepted"); },
        [](QObject& i, Rng&) { invoke(i, "editingFinished"); },
        [](QObject& i, Rng&) { invoke(i, "textChanged"); },
        [](QObject& i, Rng&) { invoke(i, "editTextChanged"); },
        [](QObject& i, Rng&) { invoke(i, "valueModified"); },
        [](QObject& i, Rng&) { invoke(i, "currentIndexChanged"); },
        [](QObject& i, Rng&) { invoke(i, "contextMenu"); },
        [](QObject& i, Rng&) { invoke(i, "doubleClicked"); },
        [](QObject& i, Rng& r) { invoke(i, "activated", Q_ARG(int, r.index())); },
        [](QObject& i, Rng& r) { invoke(i, "currentChanged", Q_ARG(int, r.index())); },
        [](QObject& i, Rng& r) { invoke(i, "menuItemTriggered", Q_ARG(QString, r.text())); },
        [](QObject& i, Rng& r) {
            invoke(i, r.percent(50) ? "keyPressed" : "keyReleased", Q_ARG(int, r.index()), Q_ARG(int, r.index()),
                   Q_ARG(QString, r.text()));
        },
        [](QObject& i, Rng& r) {
            static const std::vector<const char*> methods{"accept",   "reject",    "apply", "toggle", "increase",
                                                          "decrease", "selectAll", "clear", "undo"};
            invoke(i, r.pick(methods));
        },
        [](QObject& i, Rng& r) { invoke(i, "insert", Q_ARG(int, r.index()), Q_ARG(QString, r.text())); },
        // A tree view's signals with what is no index of its model, or an index of another.
        [](QObject& i, Rng& r) {
            static const std::vector<const char*> signals{"hoveredNode", "doubleClicked"};
            invoke(i, r.pick(signals), Q_ARG(QVariant, anyNodeArgument(i, r)));
        },
        [](QObject& i, Rng& r) {
            invoke(i, "currentChanged", Q_ARG(QVariant, anyNodeArgument(i, r)), Q_ARG(QVariant, anyNodeArgument(i, r)));
        },
        [](QObject& i, Rng& r) {
            invoke(i, "endLabelEdit", Q_ARG(QVariant, anyNodeArgument(i, r)), Q_ARG(QString, r.text()));
        },
        [](QObject& i, Rng& r) {
            const QVariant nodes = QVariantList{anyNodeArgument(i, r), anyNodeArgument(i, r)};
            if (r.percent(50))
                invoke(i, "beginDrag", Q_ARG(QVariant, nodes), Q_ARG(int, r.index()));
            else
                invoke(i, "endDrag", Q_ARG(QVariant, nodes), Q_ARG(QVariant, anyNodeArgument(i, r)),
                       Q_ARG(int, r.index()), Q_ARG(QVariant, r.index()));
        },
    };
    rng.pick(emits)(item, rng);
}

void setOnItem(QObject& item, Rng& rng)
{
    static const std::vector<ItemCall> writes{
        [](QObject& i, Rng& r) { i.setProperty("checked", r.percent(50)); },
        [](QObject& i, Rng& r) { i.setProperty("currentIndex", r.index()); },
        [](QObject& i, Rng& r) { i.setProperty("text", r.text()); },
        [](QObject& i, Rng& r) { i.setProperty("editText", r.text()); },
        [](QObject& i, Rng& r) { i.setProperty("value", r.index()); },
        [](QObject& i, Rng& r) { i.setProperty("visible", r.percent(50)); },
        [](QObject& i, Rng& r) { i.setProperty("width", r.index()); },
        [](QObject& i, Rng& r) { i.setProperty("editable", r.percent(50)); },
        // A count of rows, kept small: a view makes an item for each.
        [](QObject& i, Rng& r) {
            i.setProperty("model", r.percent(50) ? QVariant(QStringList{"m", "n"}) : QVariant(r.below(5) - 1));
        },
        // What the next walk sees: another name, another declared type.
        [](QObject& i, Rng& r) { i.setObjectName(r.pick(itemNames())); },
        [](QObject& i, Rng& r) { i.setProperty("qmlType", r.pick(kitTypes())); },
    };
    rng.pick(writes)(item, rng);
}

} // namespace dbr::stress
