#pragma once

#include "app/window/part.h"

#include <QObject>

namespace App {

class SpritePanel;
struct WindowServices;

/// The sprite panel of the current project. Several sprites can be removed in one undo step of the
/// collection. Changes of a single sprite are the sprite editor's job.
class SpriteCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// A child of the window, which places the panel.
    explicit SpriteCommands(const WindowServices& services);

    SpritePanel* panel() const { return m_panel; }

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    void showProject(Family::FamilyProject* project) override;

    /// Selects the sprite named in the cursor's line.
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
