#include "core/interface.h"
#include "editors/framework/toolbuttoncontrol.h"
#include "editors/palette/colorwidget.h"
#include "image/canvas/imagelayers.h"
#include "image/spriteeditor_p.h"
#include "image/tools/imagetool.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QListView>
#include <QMenu>
#include <QSlider>

namespace Zorv {

namespace {

using namespace ToolKind;

const char* const spriteAreas[] = {"sprites", nullptr};
const char* const stageAreas[] = {"sprites", "animations", nullptr};

constexpr int WholeOpacity = 100;

const char* const always = nullptr;
const char* const onCanvas = SIGNAL(enabled(bool));
const char* const onMixed = SIGNAL(enabled2(bool));
const char* const onChange = SIGNAL(saveEnabled(bool));
const char* const onFile = SIGNAL(fileEnabled(bool));
const char* const onSprite = SIGNAL(spriteEnabled(bool));

// clang-format off
const EditorTool table[] = {
    {"spr_add",               Action,      105, onFile,    SLOT(add()),               nullptr, stageAreas},
    {"spr_delete",            Action,      123, onSprite,  SLOT(del()),               nullptr},
    {"spr_duplicate",         Action,      128, onSprite,  SLOT(duplicate()),         nullptr},
    {"spr_openimg",           Action,      124, onSprite,  SLOT(openImg()),           nullptr},
    {"spr_saveimg",           Action,      125, onChange,  SLOT(saveImg()),           nullptr},
    {"spr_saveimgas",         Action,      126, onSprite,  SLOT(saveImgAs()),         nullptr},
    {"spr_import_proj",       Action,      129, onFile,    SLOT(projImport()),        nullptr},
    {"spr_resize",            Action,      134, onCanvas,  SLOT(resize()),            nullptr},
    {"spr_crop",              Action,      127, onCanvas,  SLOT(crop()),              nullptr},
    {"spr_split_channels",    Action,      139, onSprite,  SLOT(splitRGB()),          nullptr},
    {"spr_layer_add",         Action,      118, onCanvas,  SLOT(layerAdd()),          nullptr},
    {"spr_layer_delete",      Action,      119, onCanvas,  SLOT(layerDel()),          nullptr},
    {"spr_layer_duplicate",   Action,      120, onCanvas,  SLOT(layerClone()),        nullptr},
    {"spr_layer_mergevis",    MenuAction,  121, onCanvas,  SLOT(layerMergeVis()),     nullptr},
    {"spr_layer_mergeall",    MenuAction,  122, onCanvas,  SLOT(layerMergeAll()),     nullptr},
    {"spr_view_original",     CheckAction, 131, onCanvas,  SLOT(imgViewOrig(bool)),   nullptr},
    {"spr_image_properties",  Action,      133, onCanvas,  SLOT(imgProps()),          nullptr},
    {"spr_select_all",        Action,      141, onCanvas,  SLOT(selAll()),            nullptr},
    {"spr_select_none",       Action,      142, onCanvas,  SLOT(selNone()),           nullptr},
    {"spr_select_invert",     Action,      143, onCanvas,  SLOT(selInv()),            nullptr},
    {"spr_image_rotate",      Action,      136, onCanvas,  SLOT(imgRotate()),         nullptr},
    {"spr_image_fliph",       Action,      137, onCanvas,  SLOT(imgFlipH()),          nullptr},
    {"spr_image_flipv",       Action,      138, onCanvas,  SLOT(imgFlipV()),          nullptr},
    {"spr_frame_spr",         CheckAction, 130, always,    SLOT(frameSpr(bool)),      nullptr, stageAreas},
    {"spr_layers_blendmode",  Combo, SpriteTexts::BlendMode, onMixed, SLOT(layerBlending(int)), SIGNAL(setLayerBlending(int))},
    {"spr_layers_opacity",    Slider, SpriteTexts::Opacity, onMixed, SLOT(layerOpacity(int)), SIGNAL(setLayerOpacity(int))},
    {"spr_layers_list",       List,     NoText, onCanvas,  SLOT(layerChosen(QModelIndex)), nullptr},
    {"spr_sel",               Slider, SpriteTexts::Sprite, always, SLOT(selPosChanged(int)), SIGNAL(setSelPos(int))},
    {"spr_sel_lb",            Label,    NoText, always,    nullptr,                   SIGNAL(setPosText(QString))},
    {"spr_switch_pal",        CheckAction, 144, always,    SLOT(switchPalChanged(bool)), nullptr},
    {"spr_prev",              Action,       93, always,    SLOT(previous()),          nullptr},
    {"spr_next",              Action,       94, always,    SLOT(next()),              nullptr},
};

/// In the order of `ImageTool::Type`.
const struct
{
    const char* name;
    unsigned textId;
} toolTable[] = {
    {"spr_tool_canvasmove",   95},
    {"spr_tool_selmove",      96},
    {"spr_tool_rectsel",      97},
    {"spr_tool_freesel",      98},
    {"spr_tool_picker",       99},
    {"spr_tool_pen",         100},
    {"spr_tool_eraser",      101},
    {"spr_tool_remap_pen",   102},
    {"spr_tool_paintbucket", 103},
};
// clang-format on

/// The text numbers of the first and the last blend mode in the list.
constexpr unsigned FirstMode = 104;
constexpr unsigned LastMode = 116;

}  // namespace

void SpriteEditorPrivate::publish()
{
    published.publish(table, spriteAreas);
    imgViewOrig(false);
    restoreSwitches();
    publishTools();
    publishLayers();
    published.publishOwn("spr_foreground", colors->foregroundWidget(), onCanvas, spriteAreas);
    published.publishOwn("spr_background", colors->backgroundWidget(), onCanvas, spriteAreas);
    published.publishOwn("spr_tool_options", renderer->toolPanel(), onCanvas, spriteAreas);
    if (auto* opacity = widget<QSlider>("spr_layers_opacity")) {
        opacity->setRange(0, WholeOpacity);
        opacity->setValue(WholeOpacity);
    }
}

void SpriteEditorPrivate::publishTools()
{
    int type = 0;
    for (const auto& tool : toolTable) {
        published.publish({tool.name, CheckAction, tool.textId, onCanvas, nullptr, nullptr},
                          spriteAreas);
        QAction* made = published.action(tool.name);
        made->setData(type++);
        tools->addAction(made);
    }
    connect(tools, &QActionGroup::triggered, this, &SpriteEditorPrivate::toolChanged);
    QAction* pen = tools->actions().at(ImageTool::PenTool);
    pen->setChecked(true);
    toolChanged(pen);
}

/// The button merges visible layers; its menu has both ways to merge. The list's menu has all
/// layer actions.
void SpriteEditorPrivate::publishLayers()
{
    layerMenu = std::make_unique<QMenu>();
    for (const char* name : {"spr_layer_mergevis", "spr_layer_mergeall"}) {
        layerMenu->addAction(published.action(name));
    }
    host->addControl(
        QStringLiteral("spr_layers_menu"),
        MenuToolButtonControl(published.action("spr_layer_mergevis"), layerMenu.get()));
    auto* list = widget<QAbstractItemView>("spr_layers_list");
    if (!list) {
        return;
    }
    list->setModel(layers());
    list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const char* name : {"spr_layer_add", "spr_layer_duplicate", "spr_layer_delete",
                             "spr_layer_mergevis", "spr_layer_mergeall"}) {
        list->addAction(published.action(name));
    }
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &SpriteEditorPrivate::layerChosen);
}

void SpriteEditorPrivate::retranslate()
{
    if (auto* modes = widget<QComboBox>("spr_layers_blendmode")) {
        const int mode = modes->currentIndex();
        modes->clear();
        for (unsigned id = FirstMode; id <= LastMode; ++id) {
            modes->addItem(ZorvTranslator::instance()->trText(id));
        }
        modes->setCurrentIndex(qMax(mode, 0));
    }
    if (auto* list = widget<QAbstractItemView>("spr_layers_list")) {
        list->setAccessibleName(SpriteEditor::tr("Layers"));
    }
    workspace->setNotice(hasCanvas() ? QString()
                                     : SpriteEditor::tr("A double click on a sprite in the list "
                                                        "of sprites shows it here."));
    workspace->setUnusableText(
        SpriteEditor::tr("The canvas cannot be shown: OpenGL does not work on this display. A "
                         "driver for the graphics card, or Mesa's software OpenGL, brings it "
                         "back."));
}

void SpriteEditorPrivate::toolChanged(QAction* action)
{
    renderer->setCurrentTool(ImageTool::Type(action->data().toInt()));
}

}  // namespace Zorv
