#include "operations/references/subject.h"

#include "family/grammar/grammar.h"
#include "family/grammar/linescanner.h"
#include "family/nodes/valuetext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Operations {

using Family::LineName;
using Family::NameKind;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::Subject)
};

bool hasNumbers(NameKind kind)
{
    return kind == NameKind::Sprite || kind == NameKind::Sound;
}

}  // namespace

Subject Subject::of(const QString& mainFile, const LineName& name)
{
    const bool isFile = name.kind == NameKind::File;
    return {name.kind, mainFile, isFile ? fileNamed(mainFile, name.name) : name.name, name.id};
}

Subject Subject::fromText(const QString& mainFile, NameKind kind, const QString& text,
                          QString* error)
{
    *error = nameFault(kind, text);
    if (!error->isEmpty()) {
        return {};
    }
    const QString main = QDir::cleanPath(QFileInfo(mainFile).absoluteFilePath());
    LineName name;
    name.kind = kind;
    if (!hasNumbers(kind)) {
        name.name = text;
    } else {
        Family::AssetId::read(text, &name.id);
    }
    return of(main, name);
}

QString Subject::shown() const
{
    if (hasNumbers(kind)) {
        return id.text();
    }
    return kind == NameKind::File ? QFileInfo(mainFile).dir().relativeFilePath(name) : name;
}

bool Subject::isNamedBy(const LineName& other) const
{
    return other.kind == kind && (hasNumbers(kind) ? other.id == id : other.name == name);
}

QString nameFault(NameKind kind, const QString& text)
{
    Family::AssetId id;
    switch (kind) {
    case NameKind::Sprite:
    case NameKind::Sound:
        return Family::AssetId::read(text, &id)
                   ? QString()
                   : Text::tr("Expected a group and a number from 0 to 65535, such as 200,0; "
                              "found '%1'.")
                         .arg(text);
    case NameKind::Move:
    case NameKind::Palette:
        return !text.isEmpty() && Family::canQuote(text)
                   ? QString()
                   : Text::tr("Expected a name on one line; found '%1'.").arg(text);
    case NameKind::File:
        return !text.isEmpty() && Family::canQuote(text) && QDir::isRelativePath(text)
                   ? QString()
                   : Text::tr("Expected a path such as 'hero.anim', as the lines of the project "
                              "have it; found '%1'.")
                         .arg(text);
    default:
        return Family::isWord(text)
                   ? QString()
                   : Text::tr("Expected a word of letters, digits, '_' and '-' that does not start "
                              "with '-'; found '%1'.")
                         .arg(text);
    }
}

QString unknownSubject(const Subject& subject)
{
    const QString text[] = {{},
                            Text::tr("There is no animation '%1', and nothing names it."),
                            Text::tr("There is no move '%1', and nothing names it."),
                            Text::tr("There is no command '%1', and nothing names it."),
                            Text::tr("There is no palette '%1'."),
                            Text::tr("There is no sprite '%1', and nothing names it."),
                            Text::tr("There is no sound '%1', and nothing names it."),
                            Text::tr("Nothing names a file '%1'.")};
    return text[int(subject.kind)].arg(subject.shown());
}

QString fileNamed(const QString& mainFile, const QString& path)
{
    return QDir::cleanPath(QFileInfo(mainFile).absolutePath() + QLatin1Char('/') + path);
}

}  // namespace Operations
