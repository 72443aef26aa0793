#pragma once

#include "app/window/part.h"

#include <QObject>

namespace App {

class SpritePanel;
struct WindowServices;

/// The panel of the sprites of the project in front, of which several can be removed, in one step
/// of the collection's undo. What is done to one sprite is the business of its editor.
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
    bool canSave() const;
    void save();
    void setAxes();
    void removeSelected();

    const WindowServices& m_services;
    SpritePanel* m_panel;
};

}  // namespace App
