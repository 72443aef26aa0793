#pragma once

#include <QObject>

namespace Operations {
enum class SoundExtent;
}  // namespace Operations

namespace App {

class MainWindow;
class SoundPanel;

/// What can be done with the sounds of the panel: files come in and go out. Each change is one
/// step of the collection's undo.
class SoundCommands : public QObject
{
    Q_OBJECT

public:
    explicit SoundCommands(MainWindow* window);

    /// Flags of `Need` that are present.
    int presentNeeds() const;

    /// @name The actions
    /// @{
    void addSounds();
    void exportSounds();
    void removeSelected();
    void undo();
    void redo();
    /// @}

private:
    bool chooseExtent(const QString& title, const QStringList& files,
                      Operations::SoundExtent* extent) const;

    SoundPanel* m_panel;
};

}  // namespace App
