#pragma once

#include "app/actions/actionrow.h"

#include <zorv/media/tools/colorblindness.h>

#include <QObject>

namespace App {

struct WindowServices;

/// Simulates a colour blindness in the canvas, the stage, the colours and the thumbnails of the
/// window. Pixels, palettes and files do not change. Off at first.
class SightSwitches : public QObject
{
    Q_OBJECT

public:
    SightSwitches(const WindowServices& services, QObject* parent);

    /// One switch per kind; at most one is on.
    QVector<ActionRow> actions();

public slots:
    /// Applies it again, for widgets created since.
    void apply();

private:
    void choose(int index);

    const WindowServices& m_services;
    Zorv::ColorSight m_sight;
};

}  // namespace App
