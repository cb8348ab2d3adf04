#include "randomqml.h"

#include "rng.h"

namespace dbr::stress {

namespace {

struct Declaration
{
    QString type;
    QString lines;
};

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString declare(const QString& type, const QString& body)
{
    return type + QStringLiteral(" {\n") + body + QStringLiteral("}\n");
}

const std::vector<Declaration>& kitDeclarations()
{
    static const std::vector<Declaration> declarations{
        {"TextField", "text: \"t\""},
        {"TextArea", ""},
        {"ScrollableTextArea", ""},
        {"SearchField", ""},
        {"CheckBox", "checked: true"},
        {"RadioButton", ""},
        {"Button", "text: \"b\""},
        {"ButtonOutline", ""},
        {"RoundButton", ""},
        {"IconButton", ""},
        {"GhostButton", ""},
        {"Label", "text: \"l\""},
        {"ToggleButton", "model: [\"A\", \"B\", \"C\"]"},
        {"SpinBox", "to: 10"},
        {"Image", ""},
        {"ImageAV", ""},
        {"ImageButton", ""},
        {"ComboBox", "model: [\"x\", \"y\", \"z\"]"},
        {"ComboBox", "editable: true; model: [\"x\", \"y\"]"},
        {"ProgressBar", ""},
        {"WxConvMenu", ""},
        {"TabBar", "pages: [Item {}, Item {}, Item {}]"},
        {"TreeViewAV", "height: 120"},
        {"SingleSelListView", "model: [\"p\", \"q\"]"},
        {"SingleSelListView", "checkableItems: true"},
        {"WxConvTableView", ""},
    };
    return declarations;
}

const std::vector<QString>& plainTypes()
{
    static const std::vector<QString> types{"Q.Button", "Q.TextField", "Q.ComboBox", "Q.CheckBox", "Q.Slider",
                                            "Q.Switch", "Q.SpinBox",   "Text",       "Rectangle"};
    return types;
}

const std::vector<QString>& containerTypes()
{
    static const std::vector<QString> types{"K.Panel", "Item", "Column", "Row", "Q.Pane", "Q.Frame", "Flow"};
    return types;
}

} // namespace

const std::vector<QString>& itemNames()
{
    static const std::vector<QString> names{
        "a", "b", "c", "d", "PANEL_a", "PANEL_b", "wxID_ANY", "wxID_OK", "wxID_APPLY", "pct%1", "pct%2",
    };
    return names;
}

QString lookupName(Rng& rng)
{
    static const std::vector<QString> strangers{"", "%1", "%", "DialogAV", "zz", "Grüße", "a ", "PANEL_"};
    return rng.percent(75) ? rng.pick(itemNames()) : rng.pick(strangers);
}

const std::vector<QString>& kitTypes()
{
    static const std::vector<QString> types = [] {
        std::vector<QString> names;
        for (const Declaration& declaration : kitDeclarations())
            names.push_back(declaration.type);
        names.push_back(QStringLiteral("Panel"));
        return names;
    }();
    return types;
}

RandomQml::RandomQml(Rng& rng)
    : m_rng(rng)
{}

QByteArray RandomQml::dialog()
{
    QString lines = QStringLiteral("showApply: %1\n").arg(m_rng.percent(50) ? "true" : "false");
    // A root renamed like one of its items makes the host answer for that name.
    if (m_rng.percent(15))
        lines += nameLine();
    return document(QStringLiteral("K.DialogAV"), lines);
}

QByteArray RandomQml::panel()
{
    return document(m_rng.percent(50) ? QStringLiteral("K.Panel") : QStringLiteral("Column"), QString());
}

QByteArray RandomQml::document(const QString& rootType, const QString& rootLines)
{
    m_budget = 4 + m_rng.below(22);
    const QString body = rootLines + children(0);
    return (QStringLiteral("import QtQuick 2.15\n"
                           "import QtQuick.Controls 2.15 as Q\n"
                           "import Arvela.Components 1.0 as K\n") +
            declare(rootType, body))
        .toUtf8();
}

QString RandomQml::children(int depth)
{
    QString text;
    const int count = 1 + m_rng.below(depth == 0 ? 8 : 4);
    for (int i = 0; i < count && m_budget > 0; ++i)
        text += item(depth);
    return text;
}

QString RandomQml::item(int depth)
{
    --m_budget;
    const int kind = m_rng.below(100);
    if (depth < 3 && kind < 15)
        return container(depth);
    if (depth < 3 && kind < 25)
        return loader(depth);
    return kind < 75 ? kitItem() : plainItem();
}

QString RandomQml::kitItem()
{
    const Declaration& declaration = m_rng.pick(kitDeclarations());
    return declare(QStringLiteral("K.") + declaration.type, nameLine() + declaration.lines + QLatin1Char('\n'));
}

// Plain items are no type of the kit, unless they claim one.
QString RandomQml::plainItem()
{
    QString lines = nameLine();
    if (m_rng.percent(40))
        lines += QStringLiteral("property string qmlType: %1\n").arg(quoted(m_rng.pick(kitTypes())));
    return declare(m_rng.pick(plainTypes()), lines);
}

QString RandomQml::container(int depth)
{
    return declare(m_rng.pick(containerTypes()), nameLine() + children(depth + 1));
}

// Two components to swap between, by setting sourceComponent or active.
QString RandomQml::loader(int depth)
{
    const QString first = QStringLiteral("c%1").arg(m_components++);
    const QString second = QStringLiteral("c%1").arg(m_components++);
    const QString body = nameLine() + QStringLiteral("sourceComponent: %1\n").arg(first) +
                         declare(QStringLiteral("Component"), QStringLiteral("id: %1\n").arg(first) + item(depth + 1)) +
                         declare(QStringLiteral("Component"), QStringLiteral("id: %1\n").arg(second) + item(depth + 1));
    return declare(QStringLiteral("Loader"), body);
}

// Some items stay unnamed: the walk must pass over them.
QString RandomQml::nameLine()
{
    if (m_rng.percent(15))
        return QString();
    return QStringLiteral("objectName: %1\n").arg(quoted(m_rng.pick(itemNames())));
}

} // namespace dbr::stress
