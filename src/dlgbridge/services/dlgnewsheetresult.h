#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace dst {
class OdSmSheet;
}

namespace dbr {

// What the application's new sheet dialog hands back. The sheets belong to
// their sheet set, not to this record.
struct DlgNewSheetResult
{
    enum EAction : std::int32_t {
        Cancelled = 0,
        Created = 1,
        CreatedAndOpened = 2,
    };

    DlgNewSheetResult(std::vector<dst::OdSmSheet*>&& sheets, dst::OdSmSheet* sheet, EAction action)
        : sheets(std::move(sheets))
        , sheet(sheet)
        , action(action)
    {
    }

    std::vector<dst::OdSmSheet*> sheets;
    dst::OdSmSheet* sheet;
    EAction action;
};

} // namespace dbr
