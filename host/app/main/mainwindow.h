#pragma once

#include "app/window/jumps.h"
#include "app/window/windowservices.h"

#include <QMainWindow>

class QDockWidget;
class QLabel;
class QMenu;
class QSplitter;
class QStackedWidget;

namespace Zorv {
class CodeEditor;
}

namespace App {

class AnimationCommands;
class CodeTextEditor;
class CodeView;
class CommandRouter;
class ControlPlacer;
class DocumentTabs;
class FindInFiles;
class GameCommands;
class GameOpener;
class GameTree;
class MessagePanel;
class NewCommands;
class PaintCommands;
class PaletteCommands;
class ProblemWatch;
class QuickFixes;
class ReferenceCommands;
class RunCommands;
class Hearing;
class SoundPanel;
class SpriteCommands;
class SpritePanel;
class StageCommands;
class StartCommands;
class StartPage;
class ThumbnailCommands;
class WindowActions;
class WindowCommands;

/// The main window: texts in the middle, trees and lists around them.
///
/// It creates its parts, places them, and connects those that work together; the work itself is in
/// the parts. The host (`Zorv::Interface`) must be installed before the window is created.
class MainWindow : public QMainWindow, public Jumps
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Creates the parts that publish tools, and starts. Call it once, after the host knows the
    /// window and before anything is opened.
    void publishTools();

    /// Opens what was open when the window was last closed. If `otherwise` is not empty and is
    /// another game, opens that instead.
    void restoreWork(const QString& otherwise);

    /// Services for parts that are created elsewhere.
    const WindowServices& services() const { return m_services; }

    /// @name The parts, which live as long as the window; null before `publishTools()`
    /// @{
    CodeView* code() const { return m_code; }
    GameTree* gameTree() const { return m_gameTree; }
    GameCommands* gameCommands() const { return m_gameCommands; }
    RunCommands* runCommands() const { return m_runCommands; }
    AnimationCommands* animations() const { return m_animations; }
    ThumbnailCommands* thumbnails() const { return m_thumbnails; }
    SpriteCommands* sprites() const { return m_sprites; }
    Hearing* hearing() const { return m_hearing; }
    ReferenceCommands* references() const { return m_references; }
    SpritePanel* spritePanel() const;
    SoundPanel* soundPanel() const;
    StageCommands* stage() const { return m_stage; }
    PaletteCommands* palettes() const { return m_palettes; }
    PaintCommands* paint() const { return m_paint; }
    ProblemWatch* problems() const { return m_problems; }
    QuickFixes* fixes() const { return m_fixes; }
    MessagePanel* messagePanel() const { return m_messagePanel; }
    FindInFiles* findInFiles() const { return m_findInFiles; }
    /// @}

    /// @name What tests and pictures ask for often
    /// @{
    GameSession* session() const { return m_services.session; }
    StatusFields* status() const { return m_services.status; }
    ActionRegistry* registry() const { return m_services.actions; }
    EditorRegistry* editors() const { return m_services.editors; }
    DocumentTabs* tabs() const;
    CodeTextEditor* textEditor() const;
    Family::FamilyProject* currentProject() const;
    QAction* actionByName(const char* name) const;

    /// The code editor while a text is in front, else null.
    Zorv::CodeEditor* currentEdit() const;
    /// @}

    /// The splitter with the stage above the texts.
    QSplitter* middle() const { return m_middle; }

    /// The published tools of editors, and the menus.
    ControlPlacer* controls() const { return m_controls; }
    QMenu* menuByName(const char* name) const;

    bool openPath(const QString& path) override;
    bool openFile(const QString& fileName) override;
    void showDocument(Family::FamilyDocument* document) override;
    void showPlace(Family::FamilyDocument* document, int line, int column, int length) override;
    void showSound(int row) override;
    void moveCursor(int line) override;
    void showMiddle() override;
    bool mayClose(const Family::FamilyProject* project, const std::function<void()>& then) override;

    /// Reads the settings of the window, its parts and their contents again.
    void reconfig();

protected:
    /// Escape returns the focus to the middle, if the panel did not use the key.
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeDocks();
    QDockWidget* addDock(QWidget* widget, const char* name, Qt::DockWidgetArea area);
    void arrangeTools();
    void giveRoomAtFirst(QDockWidget* comes, const QList<QDockWidget*>& docks,
                         const QList<int>& heights);
    void addParts();
    void connectParts();
    void retranslate();
    void parseAgain();
    void updateTitle();

    QStackedWidget* m_centre;
    QStackedWidget* m_empty;  ///< shown while no text is open
    QLabel* m_hint;
    StartPage* m_start = nullptr;
    StartCommands* m_startCommands = nullptr;
    QSplitter* m_middle;
    WindowActions* m_actions;
    ControlPlacer* m_controls;
    WindowServices m_services;
    CodeView* m_code = nullptr;
    StageCommands* m_stage = nullptr;
    PaletteCommands* m_palettes = nullptr;
    PaintCommands* m_paint = nullptr;
    GameTree* m_gameTree;
    GameOpener* m_opener;
    NewCommands* m_newCommands;
    GameCommands* m_gameCommands;
    RunCommands* m_runCommands;
    AnimationCommands* m_animations = nullptr;
    ThumbnailCommands* m_thumbnails = nullptr;
    SpriteCommands* m_sprites;
    Hearing* m_hearing = nullptr;
    ReferenceCommands* m_references = nullptr;
    ProblemWatch* m_problems;
    QuickFixes* m_fixes;
    MessagePanel* m_messagePanel;
    FindInFiles* m_findInFiles;
    CommandRouter* m_router;
    WindowCommands* m_commands;
};

}  // namespace App
