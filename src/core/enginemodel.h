#pragma once

#include "zorv_export.h"

#include <QAbstractItemModel>
#include <QString>

namespace Zorv {

/// How one engine is started. Texts are as the person gave them.
struct EngineInfo
{
    QString name;        ///< shown in lists
    QString executable;  ///< path of the program
    QString parameters;  ///< the parameter string, with a mark such as "%0" for each project
    QString icon;        ///< path of a picture for lists; may be empty
};

/// One engine family: its configured engines, a row each, and facts of its grammar.
class ZORV_EXPORT EngineModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    /// The character that starts a comment in a line of code.
    virtual char commentChar() const = 0;

    /// The folder of the family's data; "/completer.xml" and "/snippets/" lie below it.
    virtual QString dataPath() const = 0;

    /// Short name of the family; "last_" and this name form a setting key.
    virtual QString identifier() const = 0;

    /// The engine's executable, as it is expected in the folder of a game.
    virtual QString executableName() const = 0;

    /// The name of the family in words for the person; the library does not ask for it.
    virtual QString displayName() const = 0;

    /// How many engines are configured.
    virtual int engineCount() const = 0;

    /// The configuration of an engine, by its number below `engineCount()`.
    virtual EngineInfo engine(unsigned index) const = 0;
};

}  // namespace Zorv
