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

void takeColumns(Reference* reference, const LinePart* part)
{
    reference->start = part->start;
    reference->end = part->end;
}

bool isAround(const LinePart* part, int column)
{
    return part && part->start <= column && column <= part->end;
}

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

/// Whether a value of these numbers names a sound.
bool namesSound(const GroupInfo* group, const KeyInfo* key, const QVariantList& numbers)
{
    return group && group->isSubGroup() && group->name == QLatin1String("sound") &&
           key->form == Form::Pair && numbers.size() == 2;
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

Reference referenceAt(const FamilyDocument* document, int line, int column)
{
    Reference reference;
    LineDetails details;
    LineReport report(nullptr, &details);
    const LineHead head = headOfLine(document, line);
    const ParsedLine parsed =
        readLine(document->findBlockByNumber(line).text(), head, document->kind(), report);
    if (parsed.kind == ParsedLine::Frame) {
        const LinePart* sprite = details.part(LinePart::Sprite);
        if (isAround(sprite, column)) {
            reference.kind = Reference::Sprite;
            reference.group = parsed.frame.group;
            reference.number = parsed.frame.number;
            takeColumns(&reference, sprite);
        }
        return reference;
    }
    const LinePart* value = details.part(LinePart::Value);
    if (parsed.kind != ParsedLine::Value || !parsed.value.isValid() || !isAround(value, column)) {
        return reference;
    }
    const QVariantList numbers = parsed.value.toList();
    if (namesSound(head.group, parsed.key, numbers)) {
        reference.kind = Reference::Sound;
        reference.group = numbers[0].toInt();
        reference.number = numbers[1].toInt();
        takeColumns(&reference, value);
        return reference;
    }
    const Form form = parsed.key->form;
    if (form == Form::Path) {
        reference.kind = Reference::File;
    } else if (form == Form::AnimationName || form == Form::CommandName || form == Form::MoveName) {
        reference.kind = Reference::Named;
    } else {
        return reference;
    }
    reference.form = form;
    reference.name = parsed.value.toString();
    takeColumns(&reference, value);
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
