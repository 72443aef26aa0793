#include "image/canvas/commands/layercommand_p.h"

namespace Zorv {

LayerCommand::LayerCommand(const QString& title, ImageCanvas* canvas, ImageLayer* layer,
                           HeldLayer::Place place, int row)
    : ImageUndoCommand(title), m_canvas(canvas), m_layer(layer, place), m_row(row)
{
}

void LayerCommand::putIn()
{
    m_layer.putInto(m_canvas, m_row);
}

void LayerCommand::takeOut()
{
    m_layer.takeFrom(m_canvas);
}

qint64 LayerCommand::byteSize() const
{
    return qint64(sizeof *this) + m_layer.byteSize();
}

qint64 LayerCommand::pack(qint64 limit)
{
    return m_layer.pack(limit);
}

}  // namespace Zorv
