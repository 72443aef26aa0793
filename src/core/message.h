#pragma once

#include <QString>

namespace Zorv {

/// One thing that the grammar says about a line of a file.
struct Message
{
    enum Type {
        Error = 0,
        Warning = 1,
        Information = 2,
        AllTypes = 3  ///< only ever passed to `Messages::count()`
    };

    Type type = Error;
    int line = 0;    ///< block number, from 0
    int column = 0;  ///< from 0
    QString text;
};

}  // namespace Zorv
