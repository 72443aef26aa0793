#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Family {
struct AssetId;
class FamilySprite;
}  // namespace Family

namespace App {

class SpritePanel;
struct WindowServices;

/// The panel of the sprites of the project in front: several can be removed, and palettes come in
/// and go out. Each change is one step of the collection's undo. What is done to one sprite is the
/// business of its editor.
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
    bool hasSprite() const;
    bool hasPalette() const;
    bool canSave() const;
    void save();
    void setAxes();
    void removeSelected();
    void openPalette();
    void savePalette();
    Family::FamilySprite* stillCurrent(int row, Family::AssetId id) const;

    const WindowServices& m_services;
    SpritePanel* m_panel;
};

}  // namespace App
