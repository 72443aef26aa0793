#pragma once

#include "app/actions/actionrow.h"

#include <zorv/media/tools/colorblindness.h>

#include <QObject>

namespace App {

struct WindowServices;

/// Shows canvas, stage, colours and small pictures of the window as people with a colour blindness
/// see them. Pixels and palettes stay as they are, and so do all files. It begins without any.
class SightSwitches : public QObject
{
    Q_OBJECT

public:
    SightSwitches(const WindowServices& services, QObject* parent);

    /// One for each kind: at most one of them is on.
    QVector<ActionRow> actions();

public slots:
    /// Once more, for widgets that have come since.
    void apply();

private:
    void choose(int index);

    const WindowServices& m_services;
    Zorv::ColorSight m_sight;
};

}  // namespace App
