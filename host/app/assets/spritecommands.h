#pragma once

#include <QObject>

class QImage;

namespace Family {
struct AssetId;
class FamilySprite;
}  // namespace Family

namespace App {

class MainWindow;
class SpritePanel;

/// What can be done with the sprites of the panel and their palettes: images and palettes come
/// in and go out. Each change is one step of the collection's undo.
class SpriteCommands : public QObject
{
    Q_OBJECT

public:
    explicit SpriteCommands(MainWindow* window);

    /// Flags of `Need` that are present.
    int presentNeeds() const;

    /// @name The actions
    /// @{
    void addImages();
    void replaceImage();
    void exportImages();
    void removeSelected();
    void undo();
    void redo();
    void openPalette();
    void savePalette();
    /// @}

private:
    Family::FamilySprite* stillCurrent(int row, Family::AssetId id) const;
    int chosenMode(const QImage& image, const Family::FamilySprite* sprite) const;

    SpritePanel* m_panel;
};

}  // namespace App
