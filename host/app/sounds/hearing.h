#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Family {
class SoundFile;
}

namespace Zorv {
class SoundEditor;
class SoundWorkspace;
}  // namespace Zorv

namespace App {

struct WindowServices;

/// The editor of sounds in the window: the waveform in the middle. Its tools are the library's.
class Hearing : public QObject, public Part
{
    Q_OBJECT

public:
    /// Makes the editor, as a child of the window.
    explicit Hearing(const WindowServices& services);
    ~Hearing() override;

    Zorv::SoundEditor* editor() const { return m_editor; }

    /// Brings a sound of the project in front into the middle.
    void showSound(int row);

    /// How the editor does the commands of the window.
    CommandRows commands() const;

private:
    void save();
    bool canSave() const;

    const WindowServices& m_services;
    Zorv::SoundWorkspace* m_workspace;
    Zorv::SoundEditor* m_editor;
};

}  // namespace App
