#pragma once

#include "core/messages.h"

#include <QMap>
#include <QString>
#include <QVariant>

namespace Zorv {

class Project;

/// The private data of a file, which is also the list of its messages.
class ProjectFilePrivate : public Messages
{
public:
    explicit ProjectFilePrivate(ProjectFile* file) : Messages(file) {}

    Project* project = nullptr;
    QMap<QString, QVariant> options;
    QString errorString;
};

}  // namespace Zorv
