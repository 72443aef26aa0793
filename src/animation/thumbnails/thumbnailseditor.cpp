#include "animation/thumbnails/thumbnailseditor.h"

#include "animation/animationeditor.h"
#include "animation/thumbnails/spritelist.h"
#include "animation/thumbnails/spriteuses.h"
#include "cache/sprites.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/codedocument.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/framework/editortools_p.h"
#include "image/spritesave_p.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QPointer>

#include <array>

namespace Zorv {

namespace {

constexpr unsigned PanelText = 166;
constexpr unsigned SaveText = 171;

const char* const areas[] = {"anim", nullptr};
const char* const listAreas[] = {"all", nullptr};

const EditorTool tools[] = {
    {"thumb_add", ToolKind::Action, 167, SIGNAL(addEnabled(bool)), SLOT(addSelected())},
    {"thumb_add_all", ToolKind::Action, 168, SIGNAL(addAllEnabled(bool)), SLOT(addAll())},
    {"thumb_new", ToolKind::Action, 169, SIGNAL(newEnabled(bool)), SLOT(newWithSelected())},
    {"thumb_new_all", ToolKind::Action, 170, SIGNAL(newAllEnabled(bool)), SLOT(newWithAll())},
    {"thumb_save", ToolKind::Action, 171, SIGNAL(saveEnabled(bool)), SLOT(saveSelected())},
};

/// In the order of `tools`.
void (ThumbnailsEditor::*const enableSignals[])(bool) = {
    &ThumbnailsEditor::addEnabled, &ThumbnailsEditor::addAllEnabled, &ThumbnailsEditor::newEnabled,
    &ThumbnailsEditor::newAllEnabled, &ThumbnailsEditor::saveEnabled};

/// Which tools are enabled, in the order of `tools`.
using ToolStates = std::array<bool, std::size(tools)>;

/// A list of animations is a project file itself or a view of one.
QVector<Animations*> animationsOf(const Project* project)
{
    QVector<Animations*> lists;
    const QList<ProjectFile*> files = project ? project->files() : QList<ProjectFile*>();
    for (ProjectFile* file : files) {
        ProjectFile* list = file;
        if (const auto* document = dynamic_cast<const CodeDocument*>(file)) {
            list = document->documentEditor(CodeNode::Animation, 0);
        }
        lists.append(dynamic_cast<Animations*>(list));
    }
    lists.removeAll(nullptr);
    return lists;
}

}  // namespace

class ThumbnailsEditorPrivate
{
public:
    explicit ThumbnailsEditorPrivate(ThumbnailsEditor* panel)
        : q(panel), list(new SpriteList), published(panel)
    {
    }

    void publish();
    ToolStates state() const;
    void tellState();
    void followRows(Sprites* sprites);
    QVector<SpriteNumber> selected() const;
    QVector<SpriteNumber> all() const;
    void add(const QVector<SpriteNumber>& sprites);
    void makeNew(const QVector<SpriteNumber>& sprites);

    ThumbnailsEditor* q;
    QPointer<SpriteList> list;
    SpriteUses uses;
    QPointer<Project> project;
    QPointer<Sprites> sprites;
    QPointer<AnimationEditor> editor;
    ToolStates told{};
    EditorTools published;
};

void ThumbnailsEditorPrivate::publish()
{
    published.publish(tools, areas);
    for (const EditorTool& tool : tools) {
        list->addAction(published.action(tool.name));
    }
    published.publishOwn("thumb_list", list, nullptr, listAreas);
}

ToolStates ThumbnailsEditorPrivate::state() const
{
    const bool isAny = list && list->model() && list->model()->rowCount() > 0;
    const bool isSelected = isAny && list->selectionModel()->hasSelection();
    const bool hasList = editor && editor->animations();
    const bool hasAnimation = hasList && editor->currentAnimation();
    return {isSelected && hasAnimation, isAny && hasAnimation, isSelected && hasList,
            isAny && hasList, isSelected};
}

void ThumbnailsEditorPrivate::tellState()
{
    const ToolStates before = told;
    told = state();
    const ToolStates now = told;
    for (size_t i = 0; i < now.size(); ++i) {
        if (now[i] != before[i]) {
            emit(q->*enableSignals[i])(now[i]);
        }
    }
}

void ThumbnailsEditorPrivate::followRows(Sprites* followed)
{
    if (sprites) {
        sprites->disconnect(q);
    }
    sprites = followed;
    if (!followed) {
        return;
    }
    const auto tell = [this] { tellState(); };
    QObject::connect(followed, &QAbstractItemModel::rowsInserted, q, tell);
    QObject::connect(followed, &QAbstractItemModel::rowsRemoved, q, tell);
    QObject::connect(followed, &QAbstractItemModel::modelReset, q, tell);
    QObject::connect(followed, &Sprites::closing, q, tell, Qt::QueuedConnection);
}

QVector<SpriteNumber> ThumbnailsEditorPrivate::selected() const
{
    return list ? list->selectedSprites() : QVector<SpriteNumber>();
}

QVector<SpriteNumber> ThumbnailsEditorPrivate::all() const
{
    return list ? list->allSprites() : QVector<SpriteNumber>();
}

void ThumbnailsEditorPrivate::add(const QVector<SpriteNumber>& numbers)
{
    if (editor && !numbers.isEmpty()) {
        editor->addSprites(editor->frameIndex() + 1, numbers);
    }
}

void ThumbnailsEditorPrivate::makeNew(const QVector<SpriteNumber>& numbers)
{
    if (editor && !numbers.isEmpty()) {
        editor->newAnimation(numbers);
    }
}

ThumbnailsEditor::ThumbnailsEditor(QObject* parent)
    : ExtraEditor(parent), d(std::make_unique<ThumbnailsEditorPrivate>(this))
{
    d->list->setUses(&d->uses);
    d->publish();
    retranslate();
    connect(d->list, &SpriteList::selectedRowsChanged, this, [this] { d->tellState(); });
    connect(d->list, &QListView::activated, this, [this](const QModelIndex& index) {
        QAction* add = d->published.action("thumb_add");
        if (add && add->isEnabled()) {
            add->trigger();
        } else {
            emit spriteActivated(index.row());
        }
    });
    for (const auto signal : enableSignals) {
        emit(this->*signal)(false);
    }
}

ThumbnailsEditor::~ThumbnailsEditor()
{
    delete d->list;
}

QString ThumbnailsEditor::name() const
{
    return QStringLiteral("thumbnails");
}

QString ThumbnailsEditor::displayName() const
{
    return ZorvTranslator::instance()->trText(PanelText);
}

void ThumbnailsEditor::retranslate()
{
    if (d->list) {
        d->list->setAccessibleName(displayName());
    }
}

void ThumbnailsEditor::setProject(Project* project)
{
    auto* sprites = dynamic_cast<Sprites*>(project ? project->file(FileID::Sprites) : nullptr);
    d->project = project;
    d->uses.setAnimations(animationsOf(project));
    if (d->list && sprites != d->sprites) {
        d->followRows(sprites);
        d->list->setSprites(sprites);
    }
    d->tellState();
}

void ThumbnailsEditor::setAnimationEditor(AnimationEditor* editor)
{
    if (d->editor) {
        d->editor->disconnect(this);
    }
    d->editor = editor;
    if (editor) {
        connect(editor, &AnimationEditor::shownChanged, this, [this] { d->tellState(); });
        connect(editor, &QObject::destroyed, this, [this] { d->tellState(); });
    }
    d->tellState();
}

SpriteList* ThumbnailsEditor::list() const
{
    return d->list;
}

void ThumbnailsEditor::addSelected()
{
    d->add(d->selected());
}

void ThumbnailsEditor::addAll()
{
    d->add(d->all());
}

void ThumbnailsEditor::newWithSelected()
{
    d->makeNew(d->selected());
}

void ThumbnailsEditor::newWithAll()
{
    d->makeNew(d->all());
}

void ThumbnailsEditor::saveSelected()
{
    if (d->list && d->list->sprites()) {
        SpriteSave(d->list->sprites(), d->list->selectedRows(), d->project,
                   {ZorvTranslator::instance()->trText(SaveText), SpriteSave::IntoFolder})
            .run();
    }
}

}  // namespace Zorv
