#pragma once

#include <dlgbridge/views/qwxtreectrl.h>

#include <QString>

#include <qut/qtconversions.h>

#include <map>
#include <vector>

namespace dbr::test {

// Appends rows written as "a(b,c),d" under the tree's root and notes their ids by text.
inline void appendTreeRows(qwxTreeCtrl& tree, const QString& rows, std::map<QString, qwxTreeItemId>& ids)
{
    std::vector<qwxTreeItemId> parents{tree.GetRootItem()};
    qwxTreeItemId last;
    QString text;
    const auto flush = [&] {
        if (!text.isEmpty())
            last = ids[text] = tree.AppendItem(parents.back(), qut::wxFromQt(text));
        text.clear();
    };
    for (const QChar c : rows) {
        if (c == QLatin1Char('(')) {
            flush();
            parents.push_back(last);
        } else if (c == QLatin1Char(',') || c == QLatin1Char(')')) {
            flush();
            if (c == QLatin1Char(')'))
                parents.pop_back();
        } else {
            text += c;
        }
    }
    flush();
}

} // namespace dbr::test
