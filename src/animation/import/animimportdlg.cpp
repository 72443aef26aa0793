#include "animation/import/animimportdlg.h"

#include "cache/sprite.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/codedocument.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"
#include "core/project.h"

#include <QCheckBox>
#include <QImage>

using Zorv::AnimationCode;
using Zorv::Animations;
using Zorv::FrameCode;

namespace {

constexpr int MostBroken = 16;     // loading stops after so many failures
constexpr unsigned AllKinds = 32;  // bits of a `FileID`

const AnimationCode* animationOf(const QModelIndex& index)
{
    const auto* list = qobject_cast<const Animations*>(index.model());
    return list ? list->at(unsigned(index.row())) : nullptr;
}

QString identifierOf(const AnimationCode* animation)
{
    return animation ? animation->property(QStringLiteral("Identifier")).toString() : QString();
}

}  // namespace

AnimImportDlg::AnimImportDlg(Zorv::Interface* host, Animations* destination)
    : ImportDlg(host, destination->project()), m_destination(destination),
      m_sprites(new QCheckBox(tr("Sprites and palettes come along")))
{
    m_sprites->setObjectName(QStringLiteral("sprites"));
    m_sprites->setChecked(true);
    start(host->pixels(PictureSide));
    addOption(m_sprites);
    connect(destination, &Animations::changed, this, [this] { readPresent(); });
    connect(destination, &QObject::destroyed, this, &QDialog::reject);
}

AnimImportDlg::~AnimImportDlg() = default;

bool AnimImportDlg::bringsSprites() const
{
    return m_sprites->isChecked();
}

QVector<QAbstractItemModel*> AnimImportDlg::lists(const Zorv::Project* project) const
{
    QVector<QAbstractItemModel*> result;
    for (unsigned bit = 0; bit < AllKinds; ++bit) {
        const QList<Zorv::ProjectFile*> files =
            project->filesByType(Zorv::FileID::Type(quint32(1) << bit));
        for (Zorv::ProjectFile* file : files) {
            const auto* document = dynamic_cast<Zorv::CodeDocument*>(file);
            auto* list = document ? dynamic_cast<Animations*>(
                                        document->documentEditor(Zorv::CodeNode::Animation, 0))
                                  : nullptr;
            if (list && list != m_destination && !result.contains(list)) {
                result.append(list);
            }
        }
    }
    return result;
}

QString AnimImportDlg::identifier(const QModelIndex& index) const
{
    return identifierOf(animationOf(index));
}

QImage AnimImportDlg::picture(const QModelIndex& index) const
{
    const AnimationCode* animation = animationOf(index);
    const QList<FrameCode*> frames = animation ? animation->frames() : QList<FrameCode*>();
    const Zorv::Sprite* last = nullptr;
    int tried = 0;
    for (const FrameCode* frame : frames) {
        const Zorv::Sprite* sprite = frame->sprite();
        if (!sprite || sprite == last) {
            continue;
        }
        last = sprite;
        const QImage image = sprite->image();
        if (!image.isNull() || ++tried == MostBroken) {
            return image;
        }
    }
    return {};
}

QSet<QString> AnimImportDlg::present() const
{
    QSet<QString> result;
    const QList<AnimationCode*> all =
        m_destination ? m_destination->animations() : QList<AnimationCode*>();
    for (const AnimationCode* animation : all) {
        result.insert(identifierOf(animation));
    }
    return result;
}

bool AnimImportDlg::isUsable(const QString& identifier) const
{
    return m_destination && m_destination->canName(identifier);
}
