#pragma once

#include <QString>
#include <QStringList>

class QMimeData;

namespace Zorv {

class Project;

/// Keys of `QImage::text()` under which PNG files store what a sprite has besides its pixels: the
/// axis as "X,Y", and the identifier of the palette.
constexpr char AxisText[] = "axis";
constexpr char PaletteText[] = "palette";

/// The folder in which image file dialogs start: where the last one ended in this project,
/// otherwise the option "project_path". The project may be null.
QString imageFolder(const Project* project);
void keepImageFolder(Project* project, const QString& folder);

/// The filter of dialogs that open images.
QString imageFilter();

/// The image files in a drag, recognised by suffix, in the order that dialogs use.
QStringList draggedImages(const QMimeData* data);

}  // namespace Zorv
