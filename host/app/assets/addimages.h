#pragma once

#include <QStringList>

namespace Family {
class SpriteCollection;
}

namespace App {

struct WindowServices;

/// Asks what is to become of images, sheets and folders of them (`ImagesDialog`), and adds them to
/// the sprites as one step of undo. An animation of them goes to the end of the text in front, or
/// of another one of the same project, as one step of that.
void addImages(const WindowServices& services, Family::SpriteCollection* into,
               const QStringList& files);

}  // namespace App
