#pragma once

#include "graphics/glcontext.h"

#include <QApplication>

#include <cstdio>

namespace Bench {

/// The whole of a program that measures what is painted with GL; gives its status.
template <class Function>
int withGl(int argc, char** argv, Function measure)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    if (!Zorv::isContextUsable()) {
        std::puts("There is no display with GL: run this by scripts/bench.");
        return 1;
    }
    measure();
    return 0;
}

}  // namespace Bench
