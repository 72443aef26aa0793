#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Operations {
enum class SoundExtent;
}  // namespace Operations

namespace App {

class SoundPanel;
struct WindowServices;

/// The panel of the sounds of the project in front, and what can be done with them: files come in
/// and go out. Each change is one step of the collection's undo.
class SoundCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Lives as a child of the window, which places the panel.
    explicit SoundCommands(const WindowServices& services);

    SoundPanel* panel() const { return m_panel; }

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    void showProject(Family::FamilyProject* project) override;
    QVector<PanelPlace> places() override;

private:
    bool hasFile() const;
    bool hasSound() const;
    bool canSave() const;
    void save();
    void addSounds();
    void exportSounds();
    void removeSelected();
    bool chooseExtent(const QString& title, const QStringList& files,
                      Operations::SoundExtent* extent) const;

    const WindowServices& m_services;
    SoundPanel* m_panel;
};

}  // namespace App
