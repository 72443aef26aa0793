#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QTimer>

class QPainter;

namespace Zorv {

class TimeLine;
class TimeLineWidget;

/// The clock of a time line and the state of its strip.
class TimeLinePrivate : public QObject
{
    Q_OBJECT

public:
    explicit TimeLinePrivate(TimeLineWidget* widget);

    /// Turns to a tick and tells of it.
    void moveTo(unsigned int tick);
    void timeStep();

    TimeLineWidget* owner;
    QList<TimeLine*> timeLines;
    unsigned int ticksPerSecond = 60;
    unsigned int currentTick = 0;
    unsigned int frameCount = 0;
    QElapsedTimer elapsedTimer;
    QTimer timer;
    float period = 16.666666F;  // milliseconds a tick
    float error = 0;            // by how many milliseconds the clock is ahead
    float currentFPS = 60;
    unsigned int fpsElapsed = 0;
    int dragTarget = 0;
    unsigned int row = 0;
    bool dragging = false;
    unsigned int visibleTicks = 0;
    unsigned int firstTick = 0;
    int headerHeight = 20;
    int labelWidth = 125;
    int tickWidth = 6;
    int rowHeight = 30;
};

}  // namespace Zorv
