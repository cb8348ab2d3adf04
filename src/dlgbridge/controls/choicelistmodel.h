#pragma once

#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/dlgbridge_export.h>

#include <QString>

#include <qut/genericlistmodel.h>

#include <memory>

namespace dbr {

// One entry of a choice: its text and what dialog code attached to it.
struct ChoiceData
{
    QString text;
    std::unique_ptr<qwxClientData> clientData;
};

inline QVariant modelData(const ChoiceData& row)
{
    return row.text;
}

// The rows of a qwxChoice, each owning its client data.
class DLGBRIDGE_EXPORT ChoiceListModel : public qut::GenericListModel<ChoiceData>
{
public:
    using GenericListModel::GenericListModel;
    ~ChoiceListModel() override;

    const ChoiceData* row(int index) const;
    // With a row out of range nothing happens.
    void setText(int index, const QString& text);
    // At a position from 0 to the row count; elsewhere the row is dropped with its client data.
    void insert(int position, ChoiceData&& row);
    // Rows from position on, with one notification.
    void insert(int position, std::vector<ChoiceData>&& rows);
    void remove(int index);
};

} // namespace dbr
