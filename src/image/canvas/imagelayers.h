#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>

#include <memory>

namespace Zorv {

class ImageCanvas;
class ImageCanvasPrivate;
class ImageLayer;
class ImageLayersPrivate;

/// The layers of a canvas as a list, the top one first. A row shows the name, which can be edited,
/// and a checkbox for its visibility. Main thread only.
class ZORV_EXPORT ImageLayers : public QAbstractListModel
{
    Q_OBJECT

public:
    ~ImageLayers() override;

    unsigned count() const;

    /// Null outside of the list.
    ImageLayer* at(unsigned index) const;
    bool contains(const ImageLayer* layer) const;

    /// Adds a layer on top, or inserts it at a row from 0 to `count()`. The list takes over the
    /// caller's reference. The layer takes the format and size of the canvas: it is placed at the
    /// top left corner, and missing pixels are transparent. Returns false, leaving the reference to
    /// the caller, if the layer is already in a list, the canvas is empty, or memory is short.
    bool add(ImageLayer* layer, bool record);
    bool insert(ImageLayer* layer, int index, bool record);

    /// Removes a layer and releases the list's reference; with `record` the history holds one.
    void remove(ImageLayer* layer, bool record);
    void remove(unsigned index, bool record);

    /// Removes all without a record: for a canvas whose history is cleared.
    void removeAll();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    /// A layer was added or removed, or looks different.
    void changed();

private:
    friend class ImageCanvasPrivate;
    friend class ImageLayersPrivate;
    explicit ImageLayers(ImageCanvas* canvas);

    std::unique_ptr<ImageLayersPrivate> d;
};

}  // namespace Zorv
