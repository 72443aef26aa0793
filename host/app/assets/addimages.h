#pragma once

#include <QStringList>

namespace Family {
class SpriteCollection;
}

namespace App {

struct WindowServices;

/// Asks how to import images, sheets and folders of images (`ImagesDialog`), and adds them to the
/// sprites as one undo step. A new animation of them is added at the end of the current text, or of
/// another text of the project, as one undo step of that text.
void addImages(const WindowServices& services, Family::SpriteCollection* into,
               const QStringList& files);

}  // namespace App
