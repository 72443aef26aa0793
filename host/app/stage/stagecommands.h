#pragma once

#include <QObject>

#include <memory>

class QAction;
class QActionGroup;

namespace Family {
class FamilyDocument;
class SpriteCollection;
}  // namespace Family

namespace App {

class MainWindow;
class OnionControls;
class StageController;
class StageRoom;
class StageSettings;
class StageView;

/// The stage of the window and what can be done with it: the actions, what is shown and hidden,
/// how a press of the mouse is meant, and what the bars tell.
class StageCommands : public QObject
{
    Q_OBJECT

public:
    /// Makes the stage; the actions of the window must be there. The view is the window's to place.
    explicit StageCommands(MainWindow* window);
    ~StageCommands() override;

    StageView* view() const { return m_view; }
    StageController* controller() const { return m_controller; }

    /// The text in front, or null: texts without animations have no stage.
    void setDocument(Family::FamilyDocument* document);
    void setSprites(Family::SpriteCollection* sprites);

    /// Shows the view if it is wanted and there is something that it could show.
    void updateShown();

    /// Flags of `Need` that are present.
    int presentNeeds() const;

    /// Takes the settings anew.
    void reconfig();

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

    /// On the stage while it has the keyboard; false if it has not.
    bool zoomIn();
    bool zoomOut();
    bool zoomActual();

signals:
    /// What `presentNeeds()` tells may have changed.
    void stateChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectStage();
    void fillBar();
    void addZoomButtons();
    void setUpModes();
    void setUpSwitches();
    void retranslate();
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

    MainWindow* m_window;
    StageView* m_view;
    StageController* m_controller;
    std::unique_ptr<StageSettings> m_settings;
    StageRoom* m_room;
    OnionControls* m_onion;
    QActionGroup* m_modes;
    Family::FamilyDocument* m_document = nullptr;
    int m_needs = 0;
    bool m_isPlaced = false;
};

}  // namespace App
