#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QAbstractListModel>
#include <QColor>
#include <QSize>

#include <oda/OdCmColor.h>
#include <oda/OdDbObjectId.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace dbr {

class IDialogFactory;
class IGuiController;
class ColorModelImpl;

enum ColorRowKind : std::int32_t {
    ColorRow = 0,
    VariesRow = 1,
    LoadRow = 2,
};

// One row of a ColorModel. The two special rows carry no text: what they show
// is QML's business, by "type".
struct DLGBRIDGE_EXPORT ColorObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString type READ type CONSTANT)
    Q_PROPERTY(int colorIndex MEMBER colorIndex CONSTANT)
    Q_PROPERTY(QColor color MEMBER color CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(bool drawDiagonal MEMBER drawDiagonal CONSTANT)

public:
    ColorObject(int colorIndex, const QColor& color, const QString& name, bool drawDiagonal, ColorRowKind kind);
    ~ColorObject() override;
    Q_DISABLE_COPY(ColorObject)

    // "varies", "load", or empty for a colour row.
    QString type() const;

    int colorIndex;
    QColor color;
    QString name;
    bool drawDiagonal;
    ColorRowKind kind;
};

// The rows of a colour combo: the colours IGuiController lists, in its order,
// then a varies row while the model varies, and last a row that opens the
// colour dialog. Colours only get added, just above the trailing rows.
class DLGBRIDGE_EXPORT ColorModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentItemChanged)
    Q_PROPERTY(QColor byLayerColor READ byLayerColor NOTIFY byLayerColorChanged)
    Q_PROPERTY(QString tooltip READ tooltip CONSTANT)
    Q_PROPERTY(QSize size READ size CONSTANT)

public:
    // With this flag, row 0 stands for pure white in color(). The other bits
    // mean what the IGuiController makes of them.
    static constexpr int WhiteAtRowZero = 32;

    // The controller and the factory must outlive the model.
    ColorModel(IGuiController& gui, IDialogFactory& dialogs, int flags, bool varies, QSize size);
    ~ColorModel() override;
    Q_DISABLE_COPY(ColorModel)

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    // Roles 0 ("object") and 1 ("modelData") both give the row's ColorObject.
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getCurrentIndex() const;
    // Only a row is taken; currentItemChanged fires even for the same row.
    void setCurrentIndex(int index);
    // Null outside the rows.
    ColorObject* getColorObject(int index) const;
    bool isVaries() const;
    // Adds the varies row (which becomes current) or takes it away.
    void setIsVaries(bool varies);
    QColor byLayerColor() const;
    QSize size() const;
    QString tooltip() const;
    IGuiController& gui();

    int flags() const;
    bool hasFlag(int mask) const;
    void setFlag(int mask);
    void clearFlag(int mask);

    // The row of the colour, added when the controller knows it anew; 0 for a
    // colour the controller refuses, and the varies row while the model varies.
    int getOrAddColor(const OdCmColor& color);
    // getOrAddColor inside a model reset, and the row becomes current.
    void setColor(const OdCmColor& color);
    // The colour of the layer, in the active viewport when the drawing shows
    // a layout, becomes the by-layer colour; black for no usable layer.
    void setByLayer(const OdDbObjectId& layerId);

    // The colour of a row; colour method kNone outside the rows.
    OdCmColor color(int index) const;
    // The packed value of color(index); 0 outside the rows.
    std::uint32_t getColor(int index) const;

    // Opens the colour dialog on the colour of that row; the chosen colour's
    // row, or nothing when the user cancelled.
    std::optional<int> showColorDialog(int currentIndex);

public Q_SLOTS:
    // A row picked in a QML pop-up; the load row opens the colour dialog.
    void onClicked(int index);
    // The chosen colour's row, or currentIndex when the user cancelled.
    int doShowColorDialog(int currentIndex);

Q_SIGNALS:
    void byLayerColorChanged();
    void currentItemChanged();
    void colorChanged(int index);

private:
    friend class ColorModelImpl;
    std::unique_ptr<ColorModelImpl> const d;
};

} // namespace dbr
