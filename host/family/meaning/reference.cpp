#include "family/meaning/reference.h"

#include "family/assets/soundfile.h"
#include "family/familydocument.h"
#include "family/grammar/groupinfo.h"
#include "family/meaning/linecontext.h"
#include "family/project/familyproject.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Family {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Family::Reference)
};

Definition none(const QString& message)
{
    return {{}, {}, message, -1};
}

Definition fileOf(const QString& path, const QString& written)
{
    if (QFileInfo(path).isFile()) {
        return {path, {}, {}, -1};
    }
    return none(Texts::tr("There is no file '%1'.").arg(written));
}

Definition frameOf(const QVector<NamePlace>& frames, const Reference& reference,
                   const FamilyDocument* document, int line)
{
    for (const NamePlace& place : frames) {
        if (place.document != document || place.line != line) {
            return {{}, place, {}, -1};
        }
    }
    return none(Texts::tr("No other frame of the project shows the sprite %1,%2.")
                    .arg(QString::number(reference.group), QString::number(reference.number)));
}

Definition soundOf(const FamilyProject* project, const Reference& reference)
{
    const SoundFile* sounds = project ? project->sounds() : nullptr;
    const AssetId id{quint16(reference.group), quint16(reference.number)};
    const int row = sounds ? sounds->find(0, id.text()) : -1;
    if (row >= 0) {
        return {{}, {}, {}, row};
    }
    return none(sounds ? Texts::tr("There is no sound %1.").arg(id.text())
                       : Texts::tr("The project has no sounds."));
}

Reference::Kind referenceKind(NameKind kind)
{
    switch (kind) {
    case NameKind::Sprite:
        return Reference::Sprite;
    case NameKind::Sound:
        return Reference::Sound;
    case NameKind::File:
        return Reference::File;
    case NameKind::None:
        return Reference::None;
    default:
        return Reference::Named;
    }
}

QString missingText(Form form, const QString& name)
{
    switch (form) {
    case Form::CommandName:
        return Texts::tr("There is no command '%1'.").arg(name);
    case Form::MoveName:
        return Texts::tr("There is no move '%1'.").arg(name);
    default:
        return Texts::tr("There is no animation '%1'.").arg(name);
    }
}

}  // namespace

LineName nameOfLine(const FamilyDocument* document, int line)
{
    LineDetails details;
    LineReport report(nullptr, &details);
    const LineHead head = headOfLine(document, line);
    const QString text = document->findBlockByNumber(line).text();
    return nameOf(text, readLine(text, head, document->kind(), report), head, details);
}

Reference referenceAt(const FamilyDocument* document, int line, int column)
{
    Reference reference;
    const LineName name = nameOfLine(document, line);
    const bool isAround = name.start <= column && column <= name.end;
    if (name.isNone() || name.isDefinition || !isAround) {
        return reference;
    }
    reference.kind = referenceKind(name.kind);
    reference.form = formNaming(name.kind);
    reference.name = name.name;
    reference.group = name.id.group;
    reference.number = name.id.number;
    reference.start = name.start;
    reference.end = name.end;
    return reference;
}

Definition definitionOf(const Reference& reference, const FamilyDocument* document,
                        const FamilyProject* project, int line)
{
    const ProjectNames names(document, project);
    switch (reference.kind) {
    case Reference::File:
        return fileOf(names.filePath(reference.name), reference.name);
    case Reference::Sprite:
        return frameOf(names.frames(reference.group, reference.number), reference, document, line);
    case Reference::Sound:
        return soundOf(project, reference);
    case Reference::Named: {
        const QVector<NamedThing> things = names.named(reference.form);
        for (const NamedThing& thing : things) {
            if (thing.name == reference.name) {
                return {{}, thing.place, {}, -1};
            }
        }
        return none(missingText(reference.form, reference.name));
    }
    case Reference::None:
        break;
    }
    return none(Texts::tr("Nothing here names something that stands elsewhere."));
}

}  // namespace Family
