#include "qwxlistctrl.h"

#include <dlgbridge/controls/modelonitem_p.h>
#include <dlgbridge/controls/qwximagelist.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxclientdata.h>

#include <QAbstractProxyModel>
#include <QAbstractTableModel>
#include <QColor>
#include <QDebug>
#include <QImage>
#include <QRegularExpression>

#include <qut/columns.h>
#include <qut/qtconversions.h>
#include <wut/guicolor.h>

#include <algorithm>

namespace dbr {

namespace {

enum ListRole {
    DisplayRole = Qt::DisplayRole,
    DecorationRole = Qt::DecorationRole,
    ColumnIdRole = Qt::WhatsThisRole,
    TextRole = 256,
    ImageRole,
    ImageIndexRole,
    IconRole,
    TextColourRole,
    CheckedRole,
    SelectedRole,
    ClientObjectRole,
    EnabledRole,
};

// The theme's window text colour, asked once: every cell starts with it.
const QColor& defaultTextColour()
{
    static const QColor colour = qut::toQt(wut::guiColor(wut::eGuiWindowText));
    return colour;
}

// Fields ordered by size: a list holds a cell per column of every row.
struct CellData
{
    CellData() = default;
    explicit CellData(QString cellText, std::unique_ptr<qwxClientData> client = {})
        : text(std::move(cellText))
        , clientObject(std::move(client))
    {}

    QString text;
    QString icon;
    std::unique_ptr<qwxClientData> clientObject;
    QColor textColour = defaultTextColour();
    int imageIndex = -1;
    bool checked = false;
};

struct RowData
{
    bool selected = false;
    bool enabled = true;
    std::vector<CellData> cells;
};

// A row with the cell first and default cells up to cellCount.
RowData rowOf(CellData cell, int cellCount = 1)
{
    RowData row;
    row.cells.reserve(std::size_t(cellCount));
    row.cells.push_back(std::move(cell));
    row.cells.resize(std::size_t(cellCount));
    return row;
}

// The rows of a list control, one cell per column, offered to the item by roles.
class ListCtrlModel : public QAbstractTableModel
{
public:
    using CellChange = std::function<void(CellData&)>;

    explicit ListCtrlModel(const QStringList& declared)
    {
        m_rows.reserve(std::size_t(declared.size()));
        for (const QString& text : declared)
            m_rows.push_back(rowOf(CellData(text)));
    }
    ~ListCtrlModel() override = default;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }

    // A model without declared columns still shows its rows in one.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : std::max(declaredColumns(), 1);
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        // Row state needs no cell, nor a valid column.
        if (hasRow(index.row())) {
            const RowData& row = m_rows[std::size_t(index.row())];
            if (role == SelectedRole)
                return row.selected;
            if (role == EnabledRole)
                return row.enabled;
        }
        const CellData* cell = cellAt(index);
        if (!cell)
            return QVariant();
        switch (role) {
        case DisplayRole:
        case TextRole: return cell->text;
        case ColumnIdRole: return columnId(index.column());
        case ImageRole: return imageOf(*cell);
        case ImageIndexRole: return cell->imageIndex;
        case IconRole: return cell->icon;
        case TextColourRole: return cell->textColour;
        case CheckedRole: return cell->checked;
        case ClientObjectRole: return QVariant::fromValue(dynamic_cast<QObject*>(cell->clientObject.get()));
        }
        return QVariant();
    }

    // The item may only say which row it selects; all else is the control's to write.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        if (role != SelectedRole)
            return false;
        setRowSelected(index.row(), value.toBool());
        return true;
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return qut::headerData(m_columns, section, orientation, role);
    }

    QHash<int, QByteArray> roleNames() const override
    {
        return {{DisplayRole, "display"},       {DecorationRole, "decoration"},
                {ColumnIdRole, "whatsThis"},    {TextRole, "modelData"},
                {ImageRole, "image"},           {ImageIndexRole, "imageIndex"},
                {IconRole, "icon"},             {TextColourRole, "textColour"},
                {CheckedRole, "checked"},       {SelectedRole, "selected"},
                {ClientObjectRole, "clientObject"}, {EnabledRole, "enabled"}};
    }

    int declaredColumns() const { return int(m_columns.columns.size()); }

    void insertColumnAt(int position, qut::ColumnData column)
    {
        if (position < 0 || position > declaredColumns())
            return;
        if (declaredColumns() == 0) {
            // The one column shown so far makes way for the first declared one.
            beginRemoveColumns(QModelIndex(), position, position);
            endRemoveColumns();
        }
        m_columns.columns.insert(m_columns.columns.begin() + position, std::move(column));
        beginInsertColumns(QModelIndex(), position, position);
        for (RowData& row : m_rows) {
            // Rows made by a reset hold one cell whatever the columns.
            if (int(row.cells.size()) < position)
                row.cells.resize(std::size_t(position));
            row.cells.insert(row.cells.begin() + position, CellData());
        }
        endInsertColumns();
    }

    bool isRowEnabled(int row) const { return !hasRow(row) || m_rows[std::size_t(row)].enabled; }

    // At most one row is selected: selecting one, or deselecting any, clears the others.
    void setRowSelected(int row, bool selected)
    {
        for (int i = 0; i < rowCount(); ++i) {
            if (!m_rows[std::size_t(i)].selected)
                continue;
            if (i == row && selected)
                return;
            m_rows[std::size_t(i)].selected = false;
            reportRow(i, SelectedRole);
        }
        if (!hasRow(row) || m_rows[std::size_t(row)].selected == selected)
            return;
        m_rows[std::size_t(row)].selected = selected;
        reportRow(row, SelectedRole);
    }

    void setCellChecked(int row, bool checked)
    {
        CellData* cell = firstCell(row);
        if (!cell || !isRowEnabled(row) || cell->checked == checked)
            return;
        cell->checked = checked;
        Q_EMIT dataChanged(index(row, 0), index(row, 0), {CheckedRole});
    }

    void setRowEnabled(int row, bool enabled)
    {
        if (!hasRow(row) || m_rows[std::size_t(row)].enabled == enabled)
            return;
        m_rows[std::size_t(row)].enabled = enabled;
        reportRow(row, EnabledRole);
    }

    QVariant cellData(int row, int role) const { return data(index(row, 0), role); }

    void resetRows(std::vector<CellData> cells)
    {
        releaseClientObjects();
        if (rowCount() > 0) {
            beginRemoveRows(QModelIndex(), 0, rowCount() - 1);
            m_rows.clear();
            endRemoveRows();
        }
        if (cells.empty())
            return;
        beginInsertRows(QModelIndex(), 0, int(cells.size()) - 1);
        m_rows.reserve(cells.size());
        for (CellData& cell : cells)
            m_rows.push_back(rowOf(std::move(cell)));
        endInsertRows();
    }

    bool insertRowAt(int row, CellData cell)
    {
        if (row < 0 || row > rowCount())
            return false;
        beginInsertRows(QModelIndex(), row, row);
        m_rows.insert(m_rows.begin() + row, rowOf(std::move(cell), columnCount()));
        endInsertRows();
        return true;
    }

    CellData* firstCell(int row) { return cellAt(index(row, 0)); }
    const CellData* cellAt(const QModelIndex& index) const
    {
        if (!index.isValid() || !hasRow(index.row()))
            return nullptr;
        const std::vector<CellData>& cells = m_rows[std::size_t(index.row())].cells;
        return index.column() < int(cells.size()) ? &cells[std::size_t(index.column())] : nullptr;
    }
    CellData* cellAt(const QModelIndex& index) { return const_cast<CellData*>(std::as_const(*this).cellAt(index)); }

    void changeCell(const QModelIndex& at, const CellChange& change, const QVector<int>& roles)
    {
        const int row = at.row();
        const int column = at.column();
        if (!hasRow(row) || column >= columnCount())
            return;
        std::vector<CellData>& cells = m_rows[std::size_t(row)].cells;
        // Rows made by a reset hold one cell whatever the columns.
        if (column < 0 || column >= int(cells.size()))
            return;
        change(cells[std::size_t(column)]);
        Q_EMIT dataChanged(index(row, column), index(row, column), roles);
    }

    void setCellContents(const QModelIndex& at, const QString& text, int image, const QString& icon,
                         const QVector<int>& roles)
    {
        changeCell(
            at,
            [&](CellData& cell) {
                cell.text = text;
                if (image >= 0)
                    cell.imageIndex = image;
                cell.icon = icon;
            },
            roles);
    }

    void setCellClientObject(const QModelIndex& at, std::unique_ptr<qwxClientData> object, const QVector<int>& roles)
    {
        changeCell(
            at, [&object](CellData& cell) { cell.clientObject = std::move(object); }, roles);
    }

    void setCellIcon(const QModelIndex& at, const QString& icon, const QVector<int>& roles)
    {
        changeCell(
            at, [&icon](CellData& cell) { cell.icon = icon; }, roles);
    }

    void moveRowTo(int from, int to)
    {
        if (from < 0 || from >= rowCount() || to < 0 || to > rowCount())
            return;
        // Qt refuses a move onto itself, and ending a refused move would corrupt the views.
        if (!beginMoveRows(QModelIndex(), from, from, QModelIndex(), to > from ? to + 1 : to))
            return;
        RowData moved = std::move(m_rows[std::size_t(from)]);
        m_rows.erase(m_rows.begin() + from);
        m_rows.insert(m_rows.begin() + std::min(to, rowCount()), std::move(moved));
        endMoveRows();
    }

    bool removeRowAt(int row)
    {
        if (!hasRow(row))
            return false;
        beginRemoveRows(QModelIndex(), row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
        return true;
    }

    void setImageList(std::shared_ptr<qwxImageList> list) { m_imageList = std::move(list); }
    void setImageNames(const wxArrayString& names) { m_imageNames = names; }

private:
    bool hasRow(int row) const { return row >= 0 && row < rowCount(); }

    // Views ask every role of every cell, so the column shown before any is declared answers nothing.
    QVariant columnId(int column) const
    {
        return column < declaredColumns() ? QVariant(m_columns.columns[std::size_t(column)].id) : QVariant();
    }

    void reportRow(int row, int role) { Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1), {role}); }

    QVariant imageOf(const CellData& cell) const
    {
        if (cell.imageIndex < 0)
            return cell.icon;
        return m_imageList ? m_imageList->getImage(cell.imageIndex) : QImage();
    }

    // Views that hold a row's client object see its cell go empty before the object dies.
    void releaseClientObjects()
    {
        for (int i = 0; i < rowCount(); ++i) {
            std::vector<CellData>& cells = m_rows[std::size_t(i)].cells;
            for (int j = 0; j < int(cells.size()); ++j) {
                std::unique_ptr<qwxClientData> released = std::move(cells[std::size_t(j)].clientObject);
                // A row made before the first column was declared holds a cell no view shows.
                if (released && j < columnCount())
                    Q_EMIT dataChanged(index(i, j), index(i, j), {});
            }
        }
    }

    qut::Columns m_columns;
    std::vector<RowData> m_rows;
    std::shared_ptr<qwxImageList> m_imageList;
    wxArrayString m_imageNames;
};

std::unique_ptr<qwxClientData> voidData(void* data)
{
    return std::make_unique<VoidClientData>(data);
}

} // namespace

class qwxListCtrlPrivate
{
public:
    explicit qwxListCtrlPrivate(qwxListCtrl& control)
        : model(control, [](const QStringList& declared) { return std::make_unique<ListCtrlModel>(declared); })
    {}

    ModelOnItem<ListCtrlModel> model;
    // Declared after the model it watches, so that it goes first.
    std::unique_ptr<QAbstractProxyModel> proxy;
};

namespace {

QModelIndexList indexesOf(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<QModelIndexList>())
        return value.value<QModelIndexList>();
    QModelIndexList indexes;
    for (const QVariant& entry : value.value<QSequentialIterable>())
        indexes << entry.toModelIndex();
    return indexes;
}

} // namespace

namespace {

// Whether text, upper-cased, is wanted (or begins with it). Compares a character
// at a time, so that a search through many rows allocates nothing.
bool isUpperCaseMatch(const QString& text, const QString& wanted, bool partial)
{
    if (partial ? text.size() < wanted.size() : text.size() != wanted.size())
        return false;
    for (int i = 0; i < wanted.size(); ++i) {
        if (text[i].toUpper() != wanted[i])
            return false;
    }
    return true;
}

} // namespace

qwxListCtrl::qwxListCtrl(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxListCtrlPrivate>(*this))
{
    static const int registered = qRegisterMetaType<QModelIndexList>("QModelIndexList");
    Q_UNUSED(registered)
    setQmlProperty("filterRole", int(TextRole));
}

qwxListCtrl::~qwxListCtrl() = default;

void qwxListCtrl::Bind(int id, std::function<void(qwxListEvent&)> handler)
{
    QmlChildList* children = qmlChildren(UseParentList);
    if (!children)
        return;
    if (id != RightClickEvent) {
        qWarning() << "Unknown list event ID:" << id;
        return;
    }
    children->connectToRightClick(qut::odFromQt(wrappedObjectName()), std::move(handler));
}

void qwxListCtrl::setProxyModel(std::unique_ptr<QAbstractProxyModel> proxy)
{
    d->proxy = std::move(proxy);
    if (!d->proxy)
        return;
    d->proxy->setSourceModel(&*d->model);
    setQmlProperty("sortFilterModel", QVariant::fromValue<QObject*>(d->proxy.get()));
}

int qwxListCtrl::GetCount() const
{
    return d->model->rowCount();
}

bool qwxListCtrl::IsEmpty() const
{
    return GetCount() == 0;
}

wxString qwxListCtrl::GetItemText(int row) const
{
    return qut::wxFromQt(d->model->cellData(row, TextRole).toString());
}

wxString qwxListCtrl::GetItemText(int row, int column) const
{
    return qut::wxFromQt(d->model->data(d->model->index(row, column), TextRole).toString());
}

wxString qwxListCtrl::GetString(int row) const
{
    return GetItemText(row);
}

int qwxListCtrl::FindString(const wxString& text, bool caseSensitive) const
{
    for (int row = 0; row < GetCount(); ++row) {
        if (GetItemText(row).IsSameAs(text, caseSensitive))
            return row;
    }
    return -1;
}

int qwxListCtrl::FindItem(long start, const wxString& text, bool partial) const
{
    if (text.empty())
        return -1;
    const QString wanted = qut::toQt(text.Upper());
    for (int row = int(std::max(start, 0L)); row < GetCount(); ++row) {
        const CellData* cell = d->model->firstCell(row);
        if (cell && isUpperCaseMatch(cell->text, wanted, partial))
            return row;
    }
    return -1;
}

int qwxListCtrl::Append(const wxString& text)
{
    const int row = GetCount();
    insertItem(row, text);
    return row;
}

int qwxListCtrl::Append(const wxString& text, void* data)
{
    d->model->insertRowAt(GetCount(), CellData(qut::toQt(text), voidData(data)));
    return GetCount() - 1;
}

bool qwxListCtrl::Insert(int row, const wxString& text, void* data)
{
    return d->model->insertRowAt(row, CellData(qut::toQt(text), voidData(data)));
}

void qwxListCtrl::Append(const wxString& text, qwxClientData* data)
{
    d->model->insertRowAt(GetCount(), CellData(qut::toQt(text), std::unique_ptr<qwxClientData>(data)));
}

void qwxListCtrl::Append(const wxArrayString& texts)
{
    for (const wxString& text : texts)
        Append(text);
}

int qwxListCtrl::Append(const wxArrayString& texts, const wxArrayString& icons)
{
    if (texts.size() != icons.size())
        return -1;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        CellData cell(qut::toQt(texts[i]));
        cell.icon = qut::toQt(icons[i]);
        d->model->insertRowAt(GetCount(), std::move(cell));
    }
    return 0;
}

void qwxListCtrl::insertItem(int row, const wxString& text)
{
    d->model->insertRowAt(row, CellData(qut::toQt(text)));
}

long qwxListCtrl::InsertItem(long row, const wxString& text, int imageIndex, const wxString& icon)
{
    CellData cell(qut::toQt(text));
    cell.imageIndex = imageIndex;
    cell.icon = qut::toQt(icon);
    return d->model->insertRowAt(int(row), std::move(cell)) ? row : -1;
}

void qwxListCtrl::SetItem(long row, int column, const wxString& text, int imageIndex, const wxString& icon)
{
    // Shared, so that filling a list allocates no list of roles per cell.
    static const QVector<int> changed{TextRole, ImageRole, IconRole};
    d->model->setCellContents(d->model->index(int(row), column), qut::toQt(text), imageIndex, qut::toQt(icon),
                              changed);
}

void qwxListCtrl::SetItemData(long row, int column, std::unique_ptr<qwxClientData> data)
{
    d->model->setCellClientObject(d->model->index(int(row), column), std::move(data), {});
}

std::unique_ptr<qwxClientData> qwxListCtrl::ExtractItemData(long row, int column)
{
    CellData* cell = d->model->cellAt(d->model->index(int(row), column));
    return cell ? std::move(cell->clientObject) : nullptr;
}

void qwxListCtrl::SetItemTextColour(long row, const wxColour& colour)
{
    const QColor textColour = qut::toQt(colour);
    d->model->changeCell(
        d->model->index(int(row), 0), [&textColour](CellData& cell) { cell.textColour = textColour; },
        {TextColourRole});
}

wxColour qwxListCtrl::GetItemTextColour(int row) const
{
    const QVariant colour = d->model->data(d->model->index(row, 0), TextColourRole);
    return qut::wxFromQt(colour.value<QColor>());
}

void qwxListCtrl::SetItemColumnImage(long row, int column, int imageIndex)
{
    d->model->changeCell(
        d->model->index(int(row), column), [imageIndex](CellData& cell) { cell.imageIndex = imageIndex; },
        {ImageRole});
}

void qwxListCtrl::SetItemColumnIcon(long row, int column, const wxString& icon)
{
    d->model->setCellIcon(d->model->index(int(row), column), qut::toQt(icon), {IconRole});
}

bool qwxListCtrl::DeleteItem(int row)
{
    return d->model->removeRowAt(row);
}

void qwxListCtrl::DeleteAllItems()
{
    d->model->resetRows({});
}

void qwxListCtrl::Clear()
{
    reset(wxArrayString());
}

void qwxListCtrl::reset(const wxArrayString& texts)
{
    std::vector<CellData> cells;
    cells.reserve(texts.size());
    for (const wxString& text : texts)
        cells.emplace_back(qut::toQt(text));
    SetSelection(-1);
    d->model->resetRows(std::move(cells));
}

void qwxListCtrl::moveRow(int from, int to)
{
    d->model->moveRowTo(from, to);
}

qwxClientData* qwxListCtrl::GetClientObject(int row) const
{
    const CellData* cell = d->model->firstCell(row);
    return cell ? cell->clientObject.get() : nullptr;
}

qwxClientData* qwxListCtrl::GetClientObject(int row, int column) const
{
    const CellData* cell = d->model->cellAt(d->model->index(row, column));
    return cell ? cell->clientObject.get() : nullptr;
}

void* qwxListCtrl::GetClientData(int row) const
{
    const CellData* cell = d->model->firstCell(row);
    if (!cell)
        return nullptr;
    if (const auto* data = dynamic_cast<const VoidClientData*>(cell->clientObject.get()))
        return data->GetData();
    qDebug() << "GetCientData used on non-void data";
    return nullptr;
}

bool qwxListCtrl::IsChecked(int row) const
{
    const CellData* cell = d->model->firstCell(row);
    return cell && cell->checked;
}

void qwxListCtrl::Check(int row, bool checked)
{
    d->model->setCellChecked(row, checked);
}

void qwxListCtrl::setChecked(int row, bool checked)
{
    Check(row, checked);
}

bool qwxListCtrl::isSelected(int row) const
{
    return d->model->cellData(row, SelectedRole).toBool();
}

void qwxListCtrl::setSelected(int row, bool selected)
{
    d->model->setRowSelected(row, selected);
}

bool qwxListCtrl::isEnabled(int row) const
{
    return d->model->isRowEnabled(row);
}

void qwxListCtrl::setEnabled(int row, bool enabled)
{
    d->model->setRowEnabled(row, enabled);
}

namespace {

bool isTable(const QAbstractItemModel& model)
{
    return model.columnCount() > 1;
}

} // namespace

int qwxListCtrl::GetSelection() const
{
    if (!isTable(*d->model))
        return getQmlProperty("currentIndex").toInt();
    const std::vector<int> rows = getSelectedTableSourceIndices();
    return rows.empty() ? -1 : rows.front();
}

void qwxListCtrl::SetSelection(int row)
{
    if (isTable(*d->model))
        setSelectedTableSourceIndices(row < 0 ? std::vector<int>() : std::vector<int>{row});
    else
        setQmlProperty("currentIndex", row);
}

void qwxListCtrl::SetSelection(const wxString& text)
{
    SetStringSelection(text);
}

bool qwxListCtrl::SetStringSelection(const wxString& text)
{
    const int row = FindString(text, false);
    if (row < 0)
        return false;
    SetSelection(row);
    return true;
}

wxString qwxListCtrl::GetStringSelection() const
{
    return GetItemText(GetSelection());
}

void qwxListCtrl::Select(int row, bool on)
{
    if (row >= GetCount())
        return;
    if (row < 0)
        SetSelection(-1);
    else if (on)
        SetSelection(row);
    else if (GetSelection() == row)
        SetSelection(-1);
}

void qwxListCtrl::SetItemState(int row, long state, long stateMask)
{
    if (row < 0 || row >= GetCount() || !(stateMask & SelectedStateBit))
        return;
    Select(row, state & SelectedStateBit);
}

int qwxListCtrl::GetNextItem(int item, int geometry, int state) const
{
    if (geometry != NextAll) {
        qWarning() << wrappedObjectName() << ": geometry not supported" << geometry;
        return item;
    }
    if (state != StateSelected) {
        qWarning() << wrappedObjectName() << ": state not supported" << state;
        return -1;
    }
    for (int row = item == -1 ? 0 : item + 1; row < GetCount(); ++row) {
        if (row >= 0 && isSelected(row))
            return row;
    }
    return -1;
}

std::vector<int> qwxListCtrl::getSelectedTableSourceIndices() const
{
    std::vector<int> rows;
    for (const QModelIndex& index : indexesOf(getQmlProperty("selectedSourceRows")))
        rows.push_back(index.row());
    return rows;
}

void qwxListCtrl::setSelectedTableSourceIndices(const std::vector<int>& rows)
{
    auto* proxy = qobject_cast<QAbstractProxyModel*>(getQmlProperty("proxyModel").value<QObject*>());
    // A table item must show its rows through a proxy; one without is no table to select in.
    if (!proxy)
        return;
    QModelIndexList indexes;
    for (int row : rows)
        indexes << proxy->mapToSource(proxy->index(row, 0));
    setQmlProperty("selectedSourceRows", QVariant::fromValue(indexes));
}

namespace {

// The rows flagged selected, walked in the order of the model the item is given.
template<typename Visit>
void forEachSelectedRow(const QAbstractItemModel& model, const QAbstractProxyModel* proxy, Visit visit)
{
    const QAbstractItemModel& walked = proxy ? static_cast<const QAbstractItemModel&>(*proxy) : model;
    for (int row = 0; row < walked.rowCount(); ++row) {
        const QModelIndex index = walked.index(row, 0);
        if (walked.data(index, SelectedRole).toBool())
            visit(proxy ? proxy->mapToSource(index).row() : row);
    }
}

} // namespace

int qwxListCtrl::GetSelectedItemCount() const
{
    int count = 0;
    forEachSelectedRow(*d->model, d->proxy.get(), [&count](int) { ++count; });
    return count;
}

std::vector<int> qwxListCtrl::GetSelections() const
{
    std::vector<int> rows;
    forEachSelectedRow(*d->model, d->proxy.get(), [&rows](int row) { rows.push_back(row); });
    return rows;
}

void qwxListCtrl::InsertColumn(int position, const wxString& heading, int width)
{
    qut::ColumnData column;
    column.id = position;
    column.title = qut::toQt(heading);
    column.secondTitle = column.title;
    column.width = width;
    d->model->insertColumnAt(position, std::move(column));
}

void qwxListCtrl::AppendColumn(const wxString& heading, int width)
{
    InsertColumn(d->model->declaredColumns(), heading, width);
}

void qwxListCtrl::AppendColumn(qut::ColumnData column)
{
    if (column.id < 0)
        column.id = d->model->declaredColumns();
    d->model->insertColumnAt(d->model->declaredColumns(), std::move(column));
}

void qwxListCtrl::SetImageList(std::shared_ptr<qwxImageList> list, int)
{
    d->model->setImageList(std::move(list));
}

void qwxListCtrl::SetImageList(const wxArrayString& names)
{
    d->model->setImageNames(names);
}

void qwxListCtrl::EnsureVisible(int row)
{
    QObject* item = findObject(wrappedObjectName());
    if (!item)
        return;
    if (isTable(*d->model))
        QMetaObject::invokeMethod(item, "ensureVisible", Q_ARG(int, row), Q_ARG(int, 0));
    else
        QMetaObject::invokeMethod(item, "positionViewAtIndex", Q_ARG(int, row), Q_ARG(int, 1));
}

void qwxListCtrl::setSearchString(const wxString& text)
{
    setQmlProperty("filterRegexp",
                   QRegularExpression(qut::toQt(text), QRegularExpression::CaseInsensitiveOption));
}

} // namespace dbr
