#pragma once

#include "zorv_export.h"

#include <QAbstractItemModel>
#include <QString>

namespace Zorv {

/// How to start one engine. The texts are exactly what the user entered.
struct EngineInfo
{
    QString name;        ///< display name in lists
    QString executable;  ///< path of the program
    QString parameters;  ///< parameters, with a placeholder such as "%0" for each project
    QString icon;        ///< path of the picture for lists; may be empty
};

/// One engine family: its configured engines, one per row, and facts about its syntax.
class ZORV_EXPORT EngineModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    /// The character that starts a comment in a line of code.
    virtual char commentChar() const = 0;

    /// The folder with the family's data: "/completer.xml" and "/snippets/" are in it.
    virtual QString dataPath() const = 0;

    /// Short name of the family. "last_" plus this name is a setting key.
    virtual QString identifier() const = 0;

    /// File name of the engine's executable, as expected in a game folder.
    virtual QString executableName() const = 0;

    /// Display name of the family. The library itself does not use it.
    virtual QString displayName() const = 0;

    /// The number of configured engines.
    virtual int engineCount() const = 0;

    /// The configuration of one engine. `index` is less than `engineCount()`.
    virtual EngineInfo engine(unsigned index) const = 0;
};

}  // namespace Zorv
