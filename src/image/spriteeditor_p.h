#pragma once

#include "cache/spritenumber.h"
#include "core/fileinput.h"
#include "editors/framework/editortools_p.h"
#include "editors/palette/colorpalette.h"
#include "editors/palette/paletteeditor.h"
#include "image/canvas/canvascontent.h"
#include "image/dialogs/imginfodlg.h"
#include "image/imagerenderer.h"
#include "image/spriteeditor.h"
#include "image/spritetexts_p.h"
#include "image/spriteworkspace.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QVariant>

#include <array>
#include <deque>
#include <functional>
#include <optional>

class QAbstractItemView;
class QAction;
class QActionGroup;
class QMenu;

namespace Zorv {

class ImageCanvas;
class ImageLayer;
class ImageLayers;
class ImageUndoStack;
class Interface;
class OrganizerEditor;
class Palette;

using EntryColors = std::array<RGBA, 256>;

/// The canvas of a sprite that is not shown at the moment.
struct KeptCanvas
{
    QPointer<Sprites> sprites;
    const Sprite* record = nullptr;  // null once its file was read again
    QVariant identifier;
    QImage loaded;
    QPoint loadedAxis;
    EntryColors colors{};               // of its palette, from the first order on
    PaletteOrder places = sameOrder();  // where its indices have moved meanwhile
    bool hasToldHidden = false;
    std::unique_ptr<CanvasContent> content;
    qint64 bytes = 0;
};

/// The state of a `SpriteEditor`, and the slots of its tools, which the host finds by name.
class SpriteEditorPrivate : public QObject, public FileInput
{
    Q_OBJECT

public:
    SpriteEditorPrivate(SpriteEditor* editor, PaletteEditor* palettes);
    ~SpriteEditorPrivate() override;

    ImageCanvas* canvas() const { return renderer->canvas(); }
    ImageLayers* layers() const;
    ImageUndoStack* history() const;

    /// True if there is something to paint on.
    bool hasCanvas() const;

    // spriteeditorcontrols.cpp
    void publish();
    void publishTools();
    void publishLayers();
    void retranslate();
    template <class Widget>
    Widget* widget(const char* name) const
    {
        return published.widget<Widget>(name);
    }

    // spriteeditorsprite.cpp
    void take(Sprites* now);
    void takeWaiting();
    void showFirst();
    enum Match { SameRecord, SameIdentifier };
    int findShown(Match match) const;
    void spritesChanged(Match match);
    void bind(int index);
    void takeChange(const Sprite& now, Match match, bool isModified);
    void remember(Sprite* sprite, int index);
    void show(int index);
    void load();
    void clearCanvas();
    void showPosition();
    Sprite* sprite() const;
    static QImage canvasForm(const QImage& image);

    // spriteeditorfront.cpp
    Sprites* inFront() const;
    bool isAway() const;
    void showPalettes();

    /// Switches the palette panel to the canvas's palettes during its lifetime.
    class OwnPalettes
    {
    public:
        explicit OwnPalettes(SpriteEditorPrivate* d);
        ~OwnPalettes();

    private:
        Q_DISABLE_COPY(OwnPalettes)
        SpriteEditorPrivate* m_d;
    };

    // spriteeditorcolors.cpp
    void loadColors();
    void fillOwn(RGBA (&entries)[256]) const;
    void showOwnColors();
    bool isPreview() const;
    void endPreview();
    void currentPaletteChanged();
    void colorsShown();
    void palettesChanged(bool isStructure);
    void followPalette();
    void chooseFirstColors();

    // spriteeditorwork.cpp
    void followCanvas();
    void touch(const QRect& rect);
    bool mayBeChanged() const;
    bool isChanged();
    void setStored();
    QVector<ImageLayer*> hiddenLayers() const;
    bool compare() const;
    bool mayLeave();
    void goBack();
    QImage flattened();
    bool putIntoSprite(QString* error);
    void tellHidden();
    static bool areSamePixels(const QImage& a, const QImage& b);
    ProjectFile* inputFile() const override;
    bool takeInput(QString* error) override;
    void dropInput() override;

    // spriteeditororders.cpp
    void rememberOrder(const PaletteOrder& order);
    static EntryColors colorsOf(const Sprite* sprite);
    static const Sprite* spriteOf(const KeptCanvas& canvas);
    std::optional<PaletteOrder> takeMove(const Sprite& now, const QImage& before,
                                         EntryColors* colorsBefore) const;
    void followInKept();
    void followMoves();
    void moveIndices(const PaletteOrder& places);

    // spriteeditorkept.cpp
    void keepCanvas();
    bool bringBack();
    void keepToBudget();
    void dropKept(const Sprites* of);
    void forgetRecords();

    // spriteeditoractions.cpp
    bool isOn(const char* name) const;
    void restoreSwitches();
    void followFrame(const Sprite* sprite);
    std::function<bool()> stillThere() const;
    bool mayDelete() const;
    void changeStored(const QString& title, int nextRow, const std::function<void()>& change);
    OrganizerEditor* organizer() const;
    void selectInList();
    void lendList(bool isLent);

    // spriteeditoradd.cpp
    void addFiles(const QPointer<Sprites>& into, const QStringList& files);
    void showAdded(const QPointer<Sprites>& into, unsigned before);
    void addCropped(const QPointer<Sprites>& into, const QStringList& files, bool isCropped);
    void setSpriteImage(QImage image, const QPoint& corner);
    bool mayReplace();
    bool storeImage(const QImage& image, const QPoint& corner, const std::function<void()>& store);
    bool eventFilter(QObject* watched, QEvent* event) override;

    // spriteeditorsize.cpp
    ImgInfoDlg::Facts facts();
    void renumber(SpriteNumber number);

    // spriteeditorlayers.cpp
    void connectLayers();
    void followActiveLayer();
    void showLayer();
    QString freshName() const;
    void merge(const char* title, bool all);

    // spriteeditorimage.cpp
    void showPlace(const QPoint& pixel, int index, QRgb color);
    void hidePlace();
    void selectIn(const QImage& mask);

    void updateEnabled();
    void historyChanged();
    void tellRefusal(const QString& message);

    SpriteEditor* const editor;
    Interface* const host;
    SpriteWorkspace* workspace;
    QPointer<PaletteEditor> palettes;
    ColorPalette* colors;
    ImageRenderer* renderer;

    QPointer<Sprites> sprites;
    QPointer<Sprites> waiting;  // of the project in front, while unsaved work blocks them
    bool isWaiting = false;
    int row = -1;                   // of the sprite on the canvas, in `sprites`
    const Sprite* shown = nullptr;  // its address, only compared: it may be deleted
    QVariant identifier;
    QImage loaded;  // the sprite's picture when the canvas was loaded
    QPoint loadedAxis;
    EntryColors loadedColors{};         // of its palette then, or since the last move
    QRect touched;                      // where the canvas may differ from `loaded`
    QVector<ImageLayer*> storedHidden;  // the hidden layers when canvas and sprite were equal
    std::optional<bool> isKnownChanged;
    const Palette* ownPalette = nullptr;  // when its colours were loaded; it may be deleted
    bool isOtherColors = false;           // the grid shows colours that belong to no palette
    bool isShowingOwn = false;  // guard: the grid is about to show the picture's own colours
    bool hasToldHidden = false;
    std::deque<KeptCanvas> kept;      // least recently shown first
    std::deque<PaletteOrder> orders;  // palette reorderings, the newest last
    int selGuard = 0;                 // above 0 while the code itself changes the position
    SpriteNumber followed;            // the number of the frame's sprite at the last call

    EditorTools published{this, SpriteTexts::instance()};
    QPointer<QAction> editorAction;
    QActionGroup* tools;
    std::unique_ptr<QMenu> layerMenu;

public slots:
    void add();
    void openImg();
    void saveImgAs();
    void projImport();
    void del();
    void duplicate();
    void splitRGB();
    void switchPalChanged(bool isOn);
    void frameSpr(bool isOn);
    void saveImg();
    void resize();
    void crop();
    void layerAdd();
    void layerDel();
    void layerClone();
    void layerMergeVis();
    void layerMergeAll();
    void layerBlending(int index);
    void layerOpacity(int percent);
    void imgViewOrig(bool isOn);
    void imgProps();
    void imgRotate();
    void imgFlipH();
    void imgFlipV();
    void selAll();
    void selNone();
    void selInv();
    void selPosChanged(int index);
    void previous();
    void next();
    void toolChanged(QAction* action);
    void layerChosen(const QModelIndex& index);

signals:
    /// There are sprites; and one of them is being edited.
    void fileEnabled(bool isEnabled);
    void spriteEnabled(bool isEnabled);

    /// There is a canvas; and its layers can be blended; and there are changes to save.
    void enabled(bool isEnabled);
    void enabled2(bool isEnabled);
    void saveEnabled(bool isEnabled);
    void setSelPos(int index);
    void setPosText(const QString& text);
    void setLayerBlending(int index);
    void setLayerOpacity(int percent);
};

}  // namespace Zorv
