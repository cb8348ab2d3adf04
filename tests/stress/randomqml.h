#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace dbr::stress {

class Rng;

// Object names of generated items: few, so that they repeat, with the
// wildcard, standard buttons, panes and names that carry a placeholder.
const std::vector<QString>& itemNames();
// A name to look up: mostly an item name, else one no item has.
QString lookupName(Rng& rng);
// The kit's type names, as items declare them in "qmlType".
const std::vector<QString>& kitTypes();

// Generated names that carry "%1" or "%2" start with this; a log line showing
// it without the placeholder after it had the name formatted into it.
inline constexpr char placeholderMark[] = "pct";

// Random QML text: kit components and plain Qt Quick Controls items in
// panels, plain containers and Loaders that can swap their item.
class RandomQml
{
public:
    explicit RandomQml(Rng& rng);

    // A "DialogAV" root.
    QByteArray dialog();
    // The root of an application's panel.
    QByteArray panel();

private:
    QByteArray document(const QString& rootType, const QString& rootLines);
    QString children(int depth);
    QString item(int depth);
    QString kitItem();
    QString plainItem();
    QString container(int depth);
    QString loader(int depth);
    QString nameLine();

    Rng& m_rng;
    int m_budget = 0;
    int m_components = 0;
};

} // namespace dbr::stress
