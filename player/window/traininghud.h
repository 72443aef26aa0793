#pragma once

#include "training/framemeter.h"

#include <QCoreApplication>
#include <QFont>

class QPainter;

namespace Player {

class Session;

/// The training display for character authors: frame meter, input history, and the state of the
/// session. Same layout of 640 by 360 as `Hud`.
class TrainingHud
{
    Q_DECLARE_TR_FUNCTIONS(Player::TrainingHud)

public:
    TrainingHud();

    void paintMeter(QPainter* painter, const FrameMeter& meter) const;
    void paintInputs(QPainter* painter, const Session& session) const;

    /// Shows pause, speed and dummy mode, where they differ from the default.
    void paintStatus(QPainter* painter, const Session& session) const;

private:
    void paintRow(QPainter* painter, const FrameMeter& meter, int fighter, qreal top) const;

    QFont m_font;
};

}  // namespace Player
