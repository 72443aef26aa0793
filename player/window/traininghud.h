#pragma once

#include "training/framemeter.h"

#include <QCoreApplication>
#include <QFont>

class QPainter;

namespace Player {

class Session;

/// What is shown to those who make characters: the frame meter, what is held for how long, and how
/// the match goes on. On the same 640 by 360 as `Hud`.
class TrainingHud
{
    Q_DECLARE_TR_FUNCTIONS(Player::TrainingHud)

public:
    TrainingHud();

    void paintMeter(QPainter* painter, const FrameMeter& meter) const;
    void paintInputs(QPainter* painter, const Session& session) const;

    /// Pause, speed and dummy, as far as they are not the usual ones.
    void paintStatus(QPainter* painter, const Session& session) const;

private:
    void paintRow(QPainter* painter, const FrameMeter& meter, int fighter, qreal top) const;

    QFont m_font;
};

}  // namespace Player
