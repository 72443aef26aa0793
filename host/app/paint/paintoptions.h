#pragma once

#include "app/actions/actionrow.h"

#include <QObject>

namespace Zorv {
class ImageRenderer;
}

namespace App {

class ActionRegistry;

class FrameShine;

/// The paint switches that are not tools: how strokes are drawn and what the canvas shows. Stored
/// as settings named like their actions.
class PaintOptions : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this object.
    PaintOptions(Zorv::ImageRenderer* renderer, FrameShine* shine, QObject* parent);

    QVector<ActionRow> actions();

    /// Restores the stored state of the switches.
    void restore(const ActionRegistry* registry);

private:
    void keep(int row, bool isOn);

    Zorv::ImageRenderer* m_renderer;
    FrameShine* m_shine;
    const ActionRegistry* m_registry = nullptr;
};

}  // namespace App
