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
/// and a box for visible. Main thread only.
class ZORV_EXPORT ImageLayers : public QAbstractListModel
{
    Q_OBJECT

public:
    ~ImageLayers() override;

    unsigned count() const;

    /// Null outside of the list.
    ImageLayer* at(unsigned index) const;
    bool contains(const ImageLayer* layer) const;

    /// Puts a layer on top, or at a row from 0 to `count()`. The list takes over the caller's
    /// reference. The layer takes the form and size of the canvas: it stands at the top left
    /// corner, and what it lacks is transparent. False, and the reference stays the caller's, for
    /// one that is in a list already, on an empty canvas, and if memory is short.
    bool add(ImageLayer* layer, bool record);
    bool insert(ImageLayer* layer, int index, bool record);

    /// Takes a layer out and gives up the list's reference; with `record` the history holds it.
    void remove(ImageLayer* layer, bool record);
    void remove(unsigned index, bool record);

    /// Without a record: for a canvas whose history is cleared.
    void removeAll();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    /// A layer has come, gone, or looks different.
    void changed();

private:
    friend class ImageCanvasPrivate;
    friend class ImageLayersPrivate;
    explicit ImageLayers(ImageCanvas* canvas);

    std::unique_ptr<ImageLayersPrivate> d;
};

}  // namespace Zorv
