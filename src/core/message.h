#pragma once

#include <QString>

namespace Zorv {

/// One error, warning or note of the parser about a line of a file.
struct Message
{
    enum Type {
        Error = 0,
        Warning = 1,
        Information = 2,
        AllTypes = 3  ///< only for `Messages::count()`
    };

    Type type = Error;
    int line = 0;    ///< block number, from 0
    int column = 0;  ///< from 0
    QString text;
};

inline bool operator==(const Message& a, const Message& b)
{
    return a.type == b.type && a.line == b.line && a.column == b.column && a.text == b.text;
}

inline bool operator!=(const Message& a, const Message& b)
{
    return !(a == b);
}

}  // namespace Zorv
