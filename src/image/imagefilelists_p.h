#pragma once

#include <QString>
#include <QStringList>

class QMimeData;

namespace Zorv {

class Project;

/// What PNG files tell of a sprite besides its pixels, under these keys of `QImage::text()`: the
/// axis as "X,Y", and the identifier of the palette.
constexpr char AxisText[] = "axis";
constexpr char PaletteText[] = "palette";

/// The folder in which file dialogs for images begin: where the last one ended in this project,
/// else the option "project_path". The project may be null.
QString imageFolder(const Project* project);
void keepImageFolder(Project* project, const QString& folder);

/// The filter of dialogs that open images.
QString imageFilter();

/// The files of a drag that are images, by their suffix, in the order of dialogs.
QStringList draggedImages(const QMimeData* data);

}  // namespace Zorv
