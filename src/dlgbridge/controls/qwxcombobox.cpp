#include "qwxcombobox.h"

#include "controlproperties_p.h"
#include "modelonitem_p.h"

#include <QDebug>
#include <QStringList>

#include <qut/qtconversions.h>
#include <qut/stringlistmodel.h>

namespace dbr {

namespace {

template<typename Strings>
std::vector<QString> toQtStrings(const Strings& texts)
{
    std::vector<QString> strings;
    strings.reserve(texts.size());
    for (const wxString& text : texts)
        strings.push_back(qut::toQt(text));
    return strings;
}

bool isEditable(const qwxWindow& control)
{
    return control.getQmlProperty("editable").toBool();
}

std::unique_ptr<qut::StringListModel> modelOf(const QStringList& declared)
{
    return std::make_unique<qut::StringListModel>(std::vector<QString>(declared.begin(), declared.end()));
}

} // namespace

class qwxComboBoxPrivate
{
public:
    explicit qwxComboBoxPrivate(qwxWindow& control)
        : model(control, &modelOf)
    {}

    ModelOnItem<qut::StringListModel> model;
};

qwxComboBox::qwxComboBox(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxComboBoxPrivate>(*this))
{}

qwxComboBox::~qwxComboBox() = default;

wxString qwxComboBox::GetValue() const
{
    return controlproperties::stringProperty(*this, isEditable(*this) ? "editText" : "currentText");
}

void qwxComboBox::SetValue(const wxString& value)
{
    const int index = FindString(value, false);
    if (index >= 0)
        Select(index);
    else
        setQmlProperty("editText", qut::toQt(value));
}

int qwxComboBox::GetSelection() const
{
    return isEditable(*this) ? FindString(GetValue(), false) : controlproperties::currentIndex(*this);
}

void qwxComboBox::Select(int index)
{
    controlproperties::setCurrentIndex(*this, index);
}

void qwxComboBox::SetSelection(int index)
{
    controlproperties::setCurrentIndex(*this, index);
}

int qwxComboBox::FindString(const wxString& text, bool caseSensitive) const
{
    if (!root())
        return -1;
    QObject* item = findObject();
    if (!item) {
        qWarning("qwxComboBox::FindString failed: child not found");
        return -1;
    }
    const Qt::MatchFlags flags = caseSensitive ? Qt::MatchCaseSensitive : Qt::MatchExactly;
    int found = -1;
    if (!QMetaObject::invokeMethod(item, "find", Qt::DirectConnection, Q_RETURN_ARG(int, found),
                                   Q_ARG(QString, qut::toQt(text)), Q_ARG(Qt::MatchFlags, flags))) {
        qWarning("qwxComboBox::FindString failed: unable to invoke method");
        return -1;
    }
    return found;
}

int qwxComboBox::Append(const wxString& text)
{
    return d->model->append(qut::toQt(text));
}

int qwxComboBox::AppendString(const wxString& text)
{
    return Append(text);
}

void qwxComboBox::Append(const wxSortedArrayString& texts)
{
    d->model->append(toQtStrings(texts));
}

void qwxComboBox::Clear()
{
    d->model->clear();
}

void qwxComboBox::Set(const wxArrayString& texts)
{
    d->model->reset(toQtStrings(texts));
}

qut::StringListModel& qwxComboBox::model() const
{
    return *d->model;
}

} // namespace dbr
