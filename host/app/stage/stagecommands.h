#pragma once

#include "app/window/part.h"

#include <QObject>

class QAction;
class QSplitter;
class QToolBar;
class QWidget;

namespace Zorv {
class CodeWorkspace;
class GraphicsWorkspace;
}  // namespace Zorv

namespace App {

class FamilyAnimationEditor;
class StageRenderer;
class StageRoom;
class StageSight;
class StageView;
struct WindowServices;

/// The animation editor in the window: the stage above the text, and commands that only the window
/// can provide. The tools come from the library.
class StageCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Creates the stage as a child of the window, above the text in `page`. `bar` and `onion` are
    /// the pages of those names (`ControlPlacer::page()`).
    StageCommands(const WindowServices& services, QSplitter* page, Zorv::CodeWorkspace* code,
                  QToolBar* bar, QWidget* onion);
    ~StageCommands() override;

    FamilyAnimationEditor* editor() const { return m_editor; }
    Zorv::GraphicsWorkspace* workspace() const { return m_workspace; }
    StageRenderer* renderer() const { return m_renderer; }
    StageView* view() const { return m_view; }

    /// Shows an animation by its index, if the editor is in front and nothing plays.
    void showAnimation(int index);

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    void showDocument(Family::FamilyDocument* document) override;
    void followRest(int line) override;
    QVector<PanelPlace> places() override;

    /// Shows the view while its editor is in front.
    void updateState() override;

    /// Stores the position of the stage for the next start.
    void keepPlace() const;

signals:
    /// The user picked a colour from a sprite's palette.
    void colourPicked(int group, int number, int colour);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isShown() const;
    bool hasShownFrame() const;
    bool hasBox() const;
    void connectStage();
    void addOnionMenu();
    void addZoomButtons();
    void giveTexts();
    void showStage();
    void choose(bool isStage);
    void takeCapture();
    void leaveMode();
    void leaveModeOrStage(bool isFree);
    void colorCaptured();
    void followState();
    void leadText();
    void takeRoom();
    Family::FamilyDocument* document() const;
    QString shownFile() const;
    QString hint() const;
    QString fault() const;
    QAction* action(const char* name) const;
    void trigger(const char* name) const;

    const WindowServices& m_services;
    Zorv::GraphicsWorkspace* m_workspace;
    StageRenderer* m_renderer;
    FamilyAnimationEditor* m_editor;
    StageView* m_view;
    StageRoom* m_room;
    StageSight* m_sight;
    QWidget* m_onion;
    bool m_hasShownFrame = false;
    bool m_hasBox = false;
};

}  // namespace App
