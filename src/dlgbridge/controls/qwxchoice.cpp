#include "qwxchoice.h"

#include "choicelistmodel.h"
#include "controlproperties_p.h"
#include "modelonitem_p.h"

#include <QStringList>

#include <qut/qtconversions.h>

namespace dbr {

namespace {

ChoiceData choiceRow(const wxString& text, qwxClientData* clientData = nullptr)
{
    return ChoiceData{qut::toQt(text), std::unique_ptr<qwxClientData>(clientData)};
}

std::vector<ChoiceData> choiceRows(const wxArrayString& texts)
{
    std::vector<ChoiceData> rows;
    rows.reserve(texts.size());
    for (const wxString& text : texts)
        rows.push_back(choiceRow(text));
    return rows;
}

std::unique_ptr<ChoiceListModel> modelOf(const QStringList& declared)
{
    std::vector<ChoiceData> rows;
    rows.reserve(size_t(declared.size()));
    for (const QString& text : declared)
        rows.push_back(ChoiceData{text, nullptr});
    return std::make_unique<ChoiceListModel>(std::move(rows));
}

} // namespace

class qwxChoicePrivate
{
public:
    explicit qwxChoicePrivate(qwxWindow& control)
        : model(control, &modelOf)
    {}

    ModelOnItem<ChoiceListModel> model;
};

qwxChoice::qwxChoice(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxChoicePrivate>(*this))
{}

qwxChoice::~qwxChoice() = default;

void qwxChoice::Select(int index)
{
    controlproperties::setCurrentIndex(*this, index);
}

int qwxChoice::GetSelection() const
{
    return controlproperties::currentIndex(*this);
}

wxString qwxChoice::GetStringSelection() const
{
    const ChoiceData* row = d->model->row(GetSelection());
    return row ? qut::wxFromQt(row->text) : wxString();
}

void qwxChoice::SetSelection(int index)
{
    Select(index);
}

void qwxChoice::SetString(int index, const wxString& text)
{
    d->model->setText(index, qut::toQt(text));
}

int qwxChoice::FindString(const wxString& text) const
{
    const QString wanted = qut::toQt(text);
    for (int index = 0; index < d->model->rowCount(); ++index) {
        if (d->model->row(index)->text == wanted)
            return index;
    }
    return -1;
}

void qwxChoice::Clear()
{
    d->model->clear();
}

void qwxChoice::Append(const wxArrayString& texts)
{
    for (const wxString& text : texts)
        Append(text);
}

void qwxChoice::Append(const wxString& text)
{
    d->model->append(choiceRow(text));
}

void qwxChoice::AppendString(const wxString& text)
{
    Append(text);
}

void qwxChoice::Insert(int index, const wxArrayString& texts)
{
    d->model->insert(index, choiceRows(texts));
}

void qwxChoice::Insert(int index, const wxString& text)
{
    d->model->insert(index, choiceRow(text));
}

int qwxChoice::GetCount() const
{
    return d->model->rowCount();
}

void qwxChoice::Delete(int index)
{
    d->model->remove(index);
}

void qwxChoice::InsertString(int index, const wxString& text)
{
    Insert(index, text);
}

wxString qwxChoice::GetValue() const
{
    return GetStringSelection();
}

wxArrayString qwxChoice::GetStrings() const
{
    wxArrayString texts;
    for (int index = 0; index < d->model->rowCount(); ++index)
        texts.Add(qut::wxFromQt(d->model->row(index)->text));
    return texts;
}

void qwxChoice::Set(const wxArrayString& texts)
{
    d->model->reset(choiceRows(texts));
}

void qwxChoice::Append(const wxString& text, qwxClientData* clientData)
{
    Insert(text, GetCount(), clientData);
}

void qwxChoice::Insert(const wxString& text, int index, qwxClientData* clientData)
{
    d->model->insert(index, choiceRow(text, clientData));
}

qwxClientData* qwxChoice::GetClientObject(int index) const
{
    const ChoiceData* row = d->model->row(index);
    return row ? row->clientData.get() : nullptr;
}

ChoiceListModel& qwxChoice::model() const
{
    return *d->model;
}

} // namespace dbr
