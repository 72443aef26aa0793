#pragma once

#include "app/actions/actionrow.h"

#include <QObject>

namespace Zorv {
class ImageRenderer;
}

namespace App {

class ActionRegistry;

class FrameShine;

/// The switches of painting that are not tools: how strokes go, and what is seen on the canvas.
/// They are kept as settings under the names of their actions.
class PaintOptions : public QObject
{
    Q_OBJECT

public:
    /// Both outlive them.
    PaintOptions(Zorv::ImageRenderer* renderer, FrameShine* shine, QObject* parent);

    QVector<ActionRow> actions();

    /// Sets the switches as they were left.
    void restore(const ActionRegistry* registry);

private:
    void keep(int row, bool isOn);

    Zorv::ImageRenderer* m_renderer;
    FrameShine* m_shine;
    const ActionRegistry* m_registry = nullptr;
};

}  // namespace App
