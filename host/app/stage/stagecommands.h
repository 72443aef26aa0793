#pragma once

#include "app/window/part.h"

#include <QObject>

#include <memory>

class QAction;
class QActionGroup;
class QSplitter;

namespace Family {
class SpriteCollection;
}  // namespace Family

namespace Zorv {
class CodeEditor;
}

namespace App {

class OnionControls;
class StageController;
class StageRoom;
class StageSettings;
class StageView;
struct WindowServices;

/// The stage of the window and what can be done with it: the actions, what is shown and hidden,
/// how a press of the mouse is meant, and what the bars tell.
class StageCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Makes the stage, as a child of the window, above the text that is in `page`.
    StageCommands(const WindowServices& services, QSplitter* page, Zorv::CodeEditor* text);
    ~StageCommands() override;

    StageView* view() const { return m_view; }
    StageController* controller() const { return m_controller; }

    QVector<ActionRow> actions() override;
    void actionsMade() override;

    /// Texts without animations have no stage.
    void showDocument(Family::FamilyDocument* document) override;
    void showProject(Family::FamilyProject* project) override;
    void followRest(int line) override;
    QVector<PanelPlace> places() override;

    /// Shows the view if it is wanted and there is something that it could show.
    void updateState() override;
    void reconfig() override;

    /// Keeps the place of the stage for the next start.
    void keepPlace() const;

    /// @name The actions
    /// @{
    void showStage();
    void play();
    void stop();
    void showPreviousFrame();
    void showNextFrame();
    void takeMode();
    void removeBoxes();
    void takeOnionSkin();
    void takeVisibility();
    void centerOrigin();
    /// @}

signals:
    /// The person has picked a colour of the palette of a sprite.
    void colourPicked(int group, int number, int colour);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What is there for actions to work on.
    enum Condition { NoCondition = 0, Frame = 1, Shown = 2, Box = 4 };
    Q_DECLARE_FLAGS(Conditions, Condition)

    Conditions conditions() const;
    bool hasFrame() const;
    bool isShown() const;
    bool hasShownFrame() const;
    bool hasBox() const;
    void connectStage();
    void fillBar();
    void addZoomButtons();
    void setUpModes();
    void setUpSwitches();
    void giveTexts();
    void leaveMode();
    void leaveModeOrStage(bool isFree);
    void colorCaptured();
    void followState();
    void followOnion();
    void takeRoom();
    QString shownFile() const;
    QString hint() const;
    QString info() const;
    QAction* action(const char* name) const;

    const WindowServices& m_services;
    StageView* m_view;
    StageController* m_controller;
    std::unique_ptr<StageSettings> m_settings;
    StageRoom* m_room;
    OnionControls* m_onion;
    QActionGroup* m_modes;
    Family::FamilyDocument* m_document = nullptr;
    Conditions m_conditions;
    bool m_isPlaced = false;
};

}  // namespace App
