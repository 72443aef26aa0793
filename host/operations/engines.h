#pragma once

#include <zorv/core/enginemodel.h>

#include <QString>
#include <QVector>

class QSettings;

namespace Operations {

/// The parameter string of a new engine: the current project.
QString defaultEngineParameters();

/// The engines in the settings, in order; at most `MaxEngines`.
QVector<Zorv::EngineInfo> loadEngines(QSettings& settings);

/// Replaces the list in the settings. False if the settings could not be written.
bool saveEngines(QSettings& settings, const QVector<Zorv::EngineInfo>& engines);

/// Loads the engines of the settings into `FamilyEngineModel`. A host calls this once at its start
/// and after each change.
void useEngines(QSettings& settings);

/// Why an engine cannot be started, for the user; empty if it can. It needs a name, an executable
/// that exists, and parameters that contain a project.
QString engineProblem(const Zorv::EngineInfo& engine);

/// Engines beyond this number are not read.
constexpr int MaxEngines = 1000;

}  // namespace Operations
