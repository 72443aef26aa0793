#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Zorv {
class SoundEditor;
class SoundWorkspace;
}  // namespace Zorv

namespace App {

class FamilySoundEditor;
class SoundPanel;
struct WindowServices;

/// Sounds in the window: the library's editor with the waveform in the middle, and the sound panel
/// of the current project. The tools come from the library.
class Hearing : public QObject, public Part
{
    Q_OBJECT

public:
    /// Creates the editor as a child of the window.
    explicit Hearing(const WindowServices& services);
    ~Hearing() override;

    Zorv::SoundEditor* editor() const;

    /// The window places it.
    SoundPanel* panel() const { return m_panel; }

    /// Shows a sound of the current project in the middle.
    void showSound(int row);

    /// How the editor runs the window's commands.
    CommandRows commands();

    void actionsMade() override;
    void showProject(Family::FamilyProject* project) override;
    void updateState() override;
    QVector<PanelPlace> places() override;

private:
    void save();
    void removeSelected();
    void follow(int row);
    bool canSave() const;

    const WindowServices& m_services;
    Zorv::SoundWorkspace* m_workspace;
    FamilySoundEditor* m_editor;
    SoundPanel* m_panel;
};

}  // namespace App
