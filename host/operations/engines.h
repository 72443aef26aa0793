#pragma once

#include <zorv/core/enginemodel.h>

#include <QString>
#include <QVector>

class QSettings;

namespace Operations {

/// The parameter string that a new engine begins with: the project in front.
QString defaultEngineParameters();

/// The engines that the settings hold, in their order; at most `MaxEngines`.
QVector<Zorv::EngineInfo> loadEngines(QSettings& settings);

/// Stores the list in place of the old one. False if the settings could not be written.
bool saveEngines(QSettings& settings, const QVector<Zorv::EngineInfo>& engines);

/// Shows the engines of the settings in `FamilyEngineModel`, as a host does once
/// at its start and after each change.
void useEngines(QSettings& settings);

/// Why an engine cannot be started, in words for the person; empty if it can: it has
/// a name, its executable is there, and its parameters ask for a project.
QString engineProblem(const Zorv::EngineInfo& engine);

/// More engines than these are not read.
constexpr int MaxEngines = 1000;

}  // namespace Operations
