#pragma once

#include <QMainWindow>
#include <QSet>

class QDockWidget;
class QLabel;
class QSplitter;
class QStackedWidget;

namespace Family {
class FamilyDocument;
class FamilyProject;
}  // namespace Family

namespace Zorv {
class CodeDocument;
class CodeEditor;
}  // namespace Zorv

namespace App {

class ActionRegistry;
class AnimationCommands;
class CodeHelp;
class CodeTextEditor;
class CodeView;
class ControlPlacer;
class DocumentTabs;
class GameCommands;
class GameOpener;
class GameSession;
class GameTree;
class MessagePanel;
class RunCommands;
class SoundCommands;
class SoundPanel;
class SpriteCommands;
class SpritePanel;
class StageCommands;
class StatusFields;
class WindowActions;

/// The window of the program: texts in the middle, trees and lists around them.
///
/// It connects its parts and asks before work is lost; what the parts do is
/// theirs. The host (`Zorv::Interface`) must be installed before it is made.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Makes the parts that publish tools: texts and animations. To be called once, when the
    /// host knows the window, and before anything is opened; these parts are null until then.
    void publishTools();

    /// Brings the middle of the window to the texts, and the keyboard to the one in front.
    void showText();

    /// Opens a game folder, or the one around a code file together with the file
    /// and its project. Tells the person what is wrong, and is false then.
    bool openPath(const QString& path);

    /// Shows a file of the game, and opens its project if that is closed. False if
    /// there is nothing to show; the person is told.
    bool openFile(const QString& fileName);

    /// Brings the text of an open project to the front. A file that would not come
    /// back from its encoding is told when it is shown first.
    void showDocument(Family::FamilyDocument* document);

    /// Opens what was open when the window was closed last. `otherwise`, if not
    /// empty, is opened instead if it is another game.
    void restoreWork(const QString& otherwise);

    /// The parts of the window. They live as long as it.
    GameSession* session() const { return m_session; }
    CodeView* code() const { return m_code; }
    CodeHelp* codeHelp() const { return m_codeHelp; }
    DocumentTabs* tabs() const;
    GameTree* gameTree() const { return m_gameTree; }
    AnimationCommands* animations() const { return m_animations; }
    SpritePanel* spritePanel() const { return m_spritePanel; }
    SoundPanel* soundPanel() const { return m_soundPanel; }
    MessagePanel* messagePanel() const { return m_messagePanel; }
    StatusFields* status() const { return m_status; }
    CodeTextEditor* textEditor() const;
    GameCommands* gameCommands() const { return m_gameCommands; }
    RunCommands* runCommands() const { return m_runCommands; }
    SpriteCommands* spriteCommands() const { return m_spriteCommands; }
    SoundCommands* soundCommands() const { return m_soundCommands; }

    /// The stage above the text, with what can be done there.
    StageCommands* stage() const { return m_stage; }

    /// The stage and the texts, one above the other.
    QSplitter* middle() const { return m_middle; }

    /// The editor while a text is in front, else null.
    Zorv::CodeEditor* currentEdit() const;

    /// The project of the text in front, else the one opened last, else null.
    Family::FamilyProject* currentProject() const;

    /// A menu or an action of the window, null for an unknown name.
    QMenu* menuByName(const char* name) const;
    QAction* actionByName(const char* name) const;

    /// Every action of the program, with its texts and keys.
    ActionRegistry* registry() const;

    /// The tools that editors publish.
    ControlPlacer* controls() const { return m_controls; }

    /// The areas that are active: "code" while a text is in front, and those of the
    /// current editor.
    QSet<QString> activeAreas() const;

    /// Takes the settings again that the window, its parts and what they show read.
    void reconfig();

    /// What is there for actions to work on: flags of `Need`.
    int presentNeeds() const;

    /// @name The actions
    /// @{
    void openFolderByDialog();
    void save();
    void saveAll();
    void closeText();
    void closeProject();
    void closeFolder();
    void quit();
    void changeEncoding();
    void addAnimation();
    void duplicateAnimation();
    void removeAnimations();
    void focusNextPanel();
    void focusPreviousPanel();
    void showNextText();
    void showPreviousText();
    void showAbout();
    /// @}

signals:
    /// `reconfig()` is done; parts that read settings of their own follow.
    void reconfigured();

protected:
    /// Escape that a panel has no use for leads back to the text.
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeCode();
    void makeCodeHelp();
    void makeStage();
    void makeDocks();
    QDockWidget* addDock(QWidget* widget, const char* name, Qt::DockWidgetArea area);
    void retranslate();
    void parseAgain();
    void connectParts();
    void connectPanels();
    void connectCode();
    void connectAssets();
    void connectStage();

    void closeDocument(Family::FamilyDocument* document);
    void showPlace(Zorv::CodeDocument* document, int line, int column, int length);
    void forgetProject(Family::FamilyProject* project);
    void gameChanged();

    void currentDocumentChanged(Family::FamilyDocument* document);
    void followCursor();
    void followLine(int line);
    void followStage(int line);
    void showMessageOfLine(int line);
    void updateSoon();
    void updateNow();
    void updateActions();
    void updateTitle();
    void updateHint();
    void updateMessages();
    void updateAssets();
    void followFrame();
    void followSprite(int line);
    void focusPanel(int step);
    void statusBarText(const QString& text);

    GameSession* m_session;
    QStackedWidget* m_centre;
    QLabel* m_hint;
    QSplitter* m_middle;
    CodeView* m_code = nullptr;
    CodeHelp* m_codeHelp = nullptr;
    StageCommands* m_stage = nullptr;
    GameTree* m_gameTree;
    AnimationCommands* m_animations;
    SpritePanel* m_spritePanel;
    SoundPanel* m_soundPanel;
    MessagePanel* m_messagePanel;
    StatusFields* m_status;
    GameOpener* m_opener;
    GameCommands* m_gameCommands;
    RunCommands* m_runCommands;
    SpriteCommands* m_spriteCommands;
    SoundCommands* m_soundCommands;
    WindowActions* m_actions;
    ControlPlacer* m_controls;
    bool m_isUpdatePending = false;
    bool m_isFollowPending = false;
};

}  // namespace App
