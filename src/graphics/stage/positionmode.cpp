#include "graphics/stage/positionmode.h"

namespace Zorv {

unsigned char positionMode(unsigned char mode)
{
    return mode & 0xf3;
}

bool isMovable(unsigned char mode)
{
    return (mode & MovableBoth) != 0;
}

bool isMovableX(unsigned char mode)
{
    return (mode & MovableX) != 0;
}

bool isMovableY(unsigned char mode)
{
    return (mode & MovableY) != 0;
}

}  // namespace Zorv
