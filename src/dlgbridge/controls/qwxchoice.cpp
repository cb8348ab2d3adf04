#include "qwxchoice.h"

#include "choicelistmodel.h"
#include "controlproperties_p.h"

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

std::unique_ptr<ChoiceListModel> modelOf(const qwxWindow& control)
{
    std::vector<ChoiceData> rows;
    for (QString& text : controlproperties::modelStrings(control))
        rows.push_back(ChoiceData{std::move(text), nullptr});
    return std::make_unique<ChoiceListModel>(std::move(rows));
}

} // namespace

qwxChoice::qwxChoice(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , m_model(modelOf(*this))
{
    controlproperties::setModel(*this, m_model.get());
}

qwxChoice::~qwxChoice() = default;

QString qwxChoice::typeId()
{
    return QStringLiteral("qwxChoice");
}

QString qwxChoice::typeName() const
{
    return typeId();
}

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
    const ChoiceData* row = m_model->row(GetSelection());
    return row ? qut::wxFromQt(row->text) : wxString();
}

void qwxChoice::SetSelection(int index)
{
    Select(index);
}

void qwxChoice::SetString(int index, const wxString& text)
{
    m_model->setText(index, qut::toQt(text));
}

int qwxChoice::FindString(const wxString& text) const
{
    const QString wanted = qut::toQt(text);
    for (int index = 0; index < m_model->rowCount(); ++index) {
        if (m_model->row(index)->text == wanted)
            return index;
    }
    return -1;
}

void qwxChoice::Clear()
{
    m_model->clear();
}

void qwxChoice::Append(const wxArrayString& texts)
{
    for (const wxString& text : texts)
        Append(text);
}

void qwxChoice::Append(const wxString& text)
{
    m_model->append(choiceRow(text));
}

void qwxChoice::AppendString(const wxString& text)
{
    Append(text);
}

void qwxChoice::Insert(int index, const wxArrayString& texts)
{
    m_model->insert(index, choiceRows(texts));
}

void qwxChoice::Insert(int index, const wxString& text)
{
    m_model->insert(index, choiceRow(text));
}

int qwxChoice::GetCount() const
{
    return m_model->rowCount();
}

void qwxChoice::Delete(int index)
{
    m_model->remove(index);
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
    for (int index = 0; index < m_model->rowCount(); ++index)
        texts.Add(qut::wxFromQt(m_model->row(index)->text));
    return texts;
}

void qwxChoice::Set(const wxArrayString& texts)
{
    m_model->reset(choiceRows(texts));
}

void qwxChoice::Append(const wxString& text, qwxClientData* clientData)
{
    Insert(text, GetCount(), clientData);
}

void qwxChoice::Insert(const wxString& text, int index, qwxClientData* clientData)
{
    m_model->insert(index, choiceRow(text, clientData));
}

qwxClientData* qwxChoice::GetClientObject(int index) const
{
    const ChoiceData* row = m_model->row(index);
    return row ? row->clientData.get() : nullptr;
}

ChoiceListModel& qwxChoice::model() const
{
    return *m_model;
}

} // namespace dbr
