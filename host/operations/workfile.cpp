#include "operations/workfile.h"

#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"

namespace Operations {

namespace {

template <class Assets>
void followAssets(Assets* assets, QObject* receiver, const WorkEvents& events)
{
    QObject::connect(assets, &Assets::modified, receiver, events.changed);
    QObject::connect(assets, &Assets::modificationChanged, receiver, events.changed);
    QObject::connect(assets, &Assets::synchronized, receiver, events.synchronized);
    QObject::connect(assets, &QObject::destroyed, receiver, events.gone);
}

}  // namespace

void followWork(Zorv::ProjectFile* file, QObject* receiver, const WorkEvents& events)
{
    using Family::FamilyDocument;
    if (auto* document = dynamic_cast<FamilyDocument*>(file)) {
        QObject::connect(document, &QTextDocument::contentsChanged, receiver, events.changed);
        QObject::connect(document, &QTextDocument::modificationChanged, receiver, events.changed);
        QObject::connect(document, &FamilyDocument::synchronized, receiver, events.synchronized);
        QObject::connect(document, &QObject::destroyed, receiver, events.gone);
    } else if (auto* sprites = dynamic_cast<Family::SpriteCollection*>(file)) {
        followAssets(sprites, receiver, events);
    } else if (auto* sounds = dynamic_cast<Family::SoundFile*>(file)) {
        followAssets(sounds, receiver, events);
    }
}

}  // namespace Operations
