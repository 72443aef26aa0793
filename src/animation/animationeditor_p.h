#pragma once

#include "animation/alignpreview_p.h"
#include "animation/animationcodewindow_p.h"
#include "animation/animationeditor.h"
#include "animation/animationstrip_p.h"
#include "animation/animationtexts_p.h"
#include "animation/edits/boxedits.h"
#include "animation/followedanimation.h"
#include "animation/playstep.h"
#include "animation/timeline/timeline.h"
#include "cache/spriteprovider.h"
#include "editors/framework/editortools_p.h"

#include <QElapsedTimer>
#include <QPointer>

class AnimAlign;
class QAction;
class QTimer;

namespace Zorv {

enum class FrameValue;
class Interface;
class TimeLineWidget;
struct ImportChoice;

/// Guard against re-entrance: the counter is above 0 while an object lives. Slots that check it
/// break signal loops.
class Guard
{
public:
    explicit Guard(int* counter) : m_counter(counter) { ++*m_counter; }
    ~Guard() { --*m_counter; }

private:
    Q_DISABLE_COPY(Guard)
    int* m_counter;
};

/// The state of an `AnimationEditor` and the slots of its tools, which the host finds by name.
///
/// Only `refresh()` reads the text into the view: at once after a user action, a moment later after
/// any other edit, and never while the stage processes input, because the stage then works on nodes
/// of its own. Each tool slot first checks `updating`: filling a tool emits its signal and must not
/// write.
class AnimationEditorPrivate : public SpriteProvider, public TimeLine
{
    Q_OBJECT

public:
    /// Which tools are enabled.
    struct Enabled
    {
        bool animation = false;
        bool frame = false;
        bool frameNC = false;
        bool frameExtra = false;
    };

    AnimationEditorPrivate(AnimationEditor* editor, GraphicsWorkspace* stage,
                           GraphicsRenderer* renderer);
    ~AnimationEditorPrivate() override;

    // `SpriteProvider`: the sprite of the frame, for the stage.
    unsigned count() const override;
    Sprite* at(unsigned index) const override;
    QVariant property(unsigned index, unsigned key) const override;

    // `TimeLine`: the row of the animation on the strip.
    QString name() const override;
    bool markerAtTick(unsigned int tick, Marker& marker) const override;
    TimeLineCells* cells() override { return &strip; }

    // animationcontrols.cpp
    void publish();
    void retranslate();
    QAction* action(const char* name) const { return published.action(name); }
    void setChecked(const char* name, bool isChecked);
    template <class Widget>
    Widget* widget(const char* name) const
    {
        return published.widget<Widget>(name);
    }

    // animationeditor.cpp
    void bind(CodeDocument* document);
    void attach();
    void detach();
    void followSprites();
    void dropSprites();
    void takeSprite();

    // animationeditorselection.cpp
    AnimationCode* currentAnimation() const { return followed.animation(); }
    FrameCode* currentFrame() const { return followed.frame(frameIndex()); }
    int animationIndex() const;
    int animationCount() const;
    int frameIndex() const;
    int frameCount() const { return followed.frameCount(); }
    void textChanged();
    void refreshSoon();
    void refreshIfStale();
    void refresh(bool followsCursor = true);
    void findAnimation();
    void showAnimation(int index);
    void showFrame(int index);
    void keepFrame(int index);

    /// After a user's edit of the text: shows this frame.
    void refreshAt(int frame);
    void fillAnimation();
    void fillFrame();
    void updateRange();
    void updateFrameRange();
    void updateEnabled();
    void tellEnabled(const Enabled& now);
    void setTick(int frame);
    void inputComes();
    void inputTaken();

    /// The title of an undo step, with the number of the shown frame in place of %1.
    QString frameTitle(const QString& text) const;

    /// Brings the editor to the front if necessary.
    void activatePanel();

    // animationeditorcommands.cpp
    void addAnimation(const QVector<SpriteNumber>& sprites);

    // animationeditorimport.cpp
    void importEntries(const ImportChoice& choice);
    bool bringAssets(const QVector<SpriteNumber>& wanted, const QPointer<Project>& source,
                     AssetResult* result);

    // animationeditorsprites.cpp
    void giveSprites(int animation, const QVector<SpriteNumber>& sprites, bool isTemplate);

    // animationeditorfields.cpp
    void applyRanges();
    double longestTime() const;
    void fillFields(const FrameCode* frame);

    /// Writes into the text what was typed into a field but not yet entered.
    void commitFields();
    template <class Value, class Setter>
    void write(const QString& title, Value (FrameCode::*get)() const, Setter set, Value value);
    void writeOffset(QPoint offset);
    void writeScale(QPointF scale);
    void moveFrame(QPoint step);

    // animationeditorlink.cpp
    bool isLinked() const;
    bool isTextShown() const;
    bool updateCurrLine();
    void followLine(int line);
    AnimationCode* animationOfLine(int line) const;
    int frameOfLine(const AnimationCode* animation, int line) const;
    bool isCursorInFrame() const;

    // animationeditorplayback.cpp
    bool isPlaying() const;
    int next(int index) const;
    void startPlay(unsigned wanted);
    void stop();
    void playTick(unsigned tick);
    void setPlayChecks(bool isOn);
    void showSpeed(unsigned tick);

    // animationeditorplayoptions.cpp
    PlayOptions playOptions() const;
    void takeSlowness(int now);
    void showFactsSoon();
    void showFacts();

    // animationeditorstage.cpp
    void setDrawing(ContactBoxCode::BoxType type, bool isOn);
    void leaveDrawing();
    ContactBoxCode* appendContactBox(ContactBoxCode::BoxType type, QRect rect);
    void showPlace(QPoint place);

    // animationeditorframes.cpp
    /// Starts a user action on frames or boxes: writes pending input. Returns the place of the
    /// shown frame; none without one.
    FramePlace beginAct();

    /// A whole user action: calls `edit` with that place, then shows the result.
    void act(const std::function<void(const FramePlace& shown)>& edit);
    void copyToNext(FrameValue value);

    // animationeditoralign.cpp
    void preparePreview();
    void showPreviewBoxes();

    // animationeditorboxes.cpp
    BoxCopier boxCopier();
    QVector<BoxPlace> selectedBoxes() const;
    QVector<BoxPlace> selectedOrAllBoxes() const;
    QVector<FramePlace> selectedPlaces() const;
    bool isStageInUse() const;

    // animationeditorboxfields.cpp
    void fillBox();
    void writeBox(QRect rect);
    void editBox(void (QRect::*edit)(int), int value);
    QRect selectedRect() const;

    // animationeditoronion.cpp
    void updateOnionRange();
    void fillOnion();
    void applyOnion();
    void fillSkins();
    void appendSkin(QVector<OnionSkin>* skins, int index, float opacity, const QColor& color) const;
    void setNeighbours(const char* key, int* field, int count);

    AnimationEditor* const editor;
    GraphicsRenderer* const renderer;
    GraphicsWorkspace* const stage;
    Interface* const host;
    QPointer<TimeLineWidget> timeLine;
    QPointer<Animations> animations;
    QPointer<Sprites> spriteList;  // whose signals are connected
    FollowedAnimation followed;
    AnimationStrip strip;
    QTextCursor frameLine;  // the line of the shown frame
    Sprite* currentSprite = nullptr;
    AnimationCodeWindow codeWindow;
    QPointer<AnimAlign> alignDialog;
    std::unique_ptr<AlignPreview> preview;
    GraphicsRenderer::ItemType spriteItemType = GraphicsRenderer::SpriteType;
    bool hasExtra = true;

    struct Onion
    {
        bool enabled = false;
        int animationIndex = 0;
        int frameIndex = 0;
        int before = 0;  // neighbours of the shown frame; replace the chosen one
        int after = 0;
    } onion;

    int nextIndex = -1;  // in playback
    int loopIndex = -1;
    int frameTick = 0;     // since the shown frame began
    int updating = 0;      // tools are being filled, or are writing
    int playing = 0;       // keep text cursor and tick
    int inputs = 0;        // the stage is working on nodes
    int cursorMoves = 0;   // nested moves of the text cursor by the editor
    int revision = 0;      // of the text before an input
    int shownCount = -1;   // of animations, as known to the tools
    bool isStale = false;  // the text has changed since it was shown
    bool isRefreshPending = false;
    bool isCursorPending = false;  // moved by the user during playback
    QElapsedTimer sinceTick;
    int slowness = 1;         // of playback
    bool isRepeated = false;  // start again at the end
    QTimer* factsTimer = nullptr;

    EditorTools published{this, AnimationTexts::instance()};
    QPointer<QAction> editorAction;

    Enabled isEnabled;

public slots:
    void editCode(bool isOn);
    void selPosChanged(int index);
    void frameSelPosChanged(int index);
    void prevAnim();
    void nextAnim();
    void prevFrame();
    void nextFrame();

    void frameXChanged(int x);
    void frameYChanged(int y);
    void frameTimeChanged(int ticks);
    void frameFlipChanged(int row);
    void frameScaleXChanged(double factor);
    void frameScaleYChanged(double factor);
    void frameAngleChanged(double degrees);
    void axisLeft();
    void axisUp();
    void axisRight();
    void axisDown();

    void playChanged(bool isChecked);
    void stopChanged(bool isChecked);
    void playAnimation(unsigned int tick);
    void playHere();
    void playHalfChanged(bool isOn);
    void playQuarterChanged(bool isOn);
    void playAgainChanged(bool isOn);

    void add();
    void del();
    void duplicate();
    void frameAdd();
    void frameDel();
    void frameReverse();

    void frameAllOffset();
    void frameAllTime();
    void frameAllFlip();
    void frameAllScale();

    void frameAlign();
    void editAnimCode();
    void projImport();

    void boxAddAChanged(bool isOn);
    void boxAddCChanged(bool isOn);
    void boxDel();
    void boxDelAll();
    void boxDelAllAnim();
    void boxSwType();
    void boxPrev();
    void boxAllInst();
    void boxCopy();
    void boxPaste();
    void boxMirror();
    void boxToFrames();
    void boxLock(bool isOn);
    void boxXChanged(int x);
    void boxYChanged(int y);
    void boxWidthChanged(int width);
    void boxHeightChanged(int height);

    void optimize();
    void saveGIF();

    void onionSkinChanged(bool isOn);
    void onionSelPosChanged(int index);
    void onionFrameSelPosChanged(int index);
    void onionBeforeChanged(int count);
    void onionAfterChanged(int count);

signals:
    void enabled(bool isEnabled);
    void frameEnabled(bool isEnabled);
    void frameEnabledNC(bool isEnabled);
    void frameEnabledExtra(bool isEnabled);

    /// Exactly one contact box is selected.
    void boxEnabled(bool isEnabled);

    // What the tools show.
    void setSelPos(int index);
    void setPosText(const QString& text);
    void setFrameSelPos(int index);
    void setFramePosText(const QString& text);
    void setFrameX(int x);
    void setFrameY(int y);
    void setFrameFlip(int row);
    void setFrameScaleX(double factor);
    void setFrameScaleY(double factor);
    void setFrameAngle(double degrees);
    void setFrameTime(int ticks);
    void setBoxX(int x);
    void setBoxY(int y);
    void setBoxWidth(int width);
    void setBoxHeight(int height);
    void setOnionSkin(bool isOn);
    void setOnionSelPos(int index);
    void setOnionFrameSelPos(int index);
    void setOnionText(const QString& text);
    void setOnionBefore(int count);
    void setOnionAfter(int count);
    void setFacts(const QString& text);
};

}  // namespace Zorv
