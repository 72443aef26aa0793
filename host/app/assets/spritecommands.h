#pragma once

#include "app/window/part.h"

#include <QObject>

class QImage;

namespace Family {
struct AssetId;
class FamilySprite;
}  // namespace Family

namespace App {

class SpritePanel;
struct WindowServices;

/// The panel of the sprites of the project in front, and what can be done with them and their
/// palettes: images and palettes come in and go out. Each change is one step of the collection's
/// undo.
class SpriteCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window, which places the panel.
    explicit SpriteCommands(const WindowServices& services);

    SpritePanel* panel() const { return m_panel; }

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    void showProject(Family::FamilyProject* project) override;

    /// The sprite that the line of the cursor names becomes the current one.
    void followRest(int line) override;
    QVector<PanelPlace> places() override;

private:
    bool hasFile() const;
    bool hasSprite() const;
    bool hasPalette() const;
    bool canSave() const;
    void save();
    void addImages();
    void replaceImage();
    void exportImages();
    void removeSelected();
    void openPalette();
    void savePalette();
    Family::FamilySprite* stillCurrent(int row, Family::AssetId id) const;
    int chosenMode(const QImage& image, const Family::FamilySprite* sprite) const;

    const WindowServices& m_services;
    SpritePanel* m_panel;
};

}  // namespace App
