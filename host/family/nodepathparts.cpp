#include "family/nodepathparts.h"

#include "family/grammar/linescanner.h"
#include "family/nodes/valuetext.h"

#include <QCoreApplication>

namespace Family {

namespace {

QString unquoted(const QStringRef& text)
{
    QString result;
    for (int i = 1; i + 1 < text.size(); ++i) {
        QChar character = text.at(i);
        if (character == QLatin1Char('\\') && i + 2 < text.size()) {
            character = text.at(++i);
            character = character == QLatin1Char('n') ? QLatin1Char('\n') : character;
        }
        result += character;
    }
    return result;
}

/// A word or a quoted text; a null string if there is neither.
QString readName(LineScanner& scanner)
{
    const int start = scanner.position();
    if (start < scanner.size() && scanner.current() == QLatin1Char('"')) {
        return scanner.text()
                   ? unquoted(scanner.part(start, scanner.position())) + QLatin1String("")
                   : QString();
    }
    const QStringRef word = scanner.word();
    return word.isEmpty() ? QString() : word.toString();
}

bool readPart(LineScanner& scanner, PathPart* part)
{
    part->name = readName(scanner);
    if (part->name.isNull()) {
        return false;
    }
    if (scanner.accept(':')) {
        part->hasArgument = true;
        part->argument = readName(scanner);
        if (part->argument.isNull()) {
            return false;
        }
    }
    if (scanner.accept('#')) {
        bool ok = false;
        part->number = scanner.word().toInt(&ok);
        return ok && part->number > 0;
    }
    return true;
}

}  // namespace

QString pathName(const QString& name)
{
    return isWord(name) ? name : quotedText(name);
}

QString PathPart::text() const
{
    return hasArgument ? pathName(name) + QLatin1Char(':') + pathName(argument) : pathName(name);
}

QVector<PathPart> splitPath(const QString& path, QString* error)
{
    QVector<PathPart> parts;
    LineScanner scanner(path);
    bool more = true;
    while (more) {
        PathPart part;
        if (!readPart(scanner, &part)) {
            break;
        }
        parts.append(part);
        more = scanner.accept('.') || scanner.accept('/');
    }
    if (!more && scanner.position() == scanner.size()) {
        return parts;
    }
    if (error) {
        *error = QCoreApplication::translate("Family",
                                             "The path '%1' cannot be read from its character %2 "
                                             "on. Expected names with '.' or '/' between, such as "
                                             "'constants.life' or 'animation:200/frame:0/delay'.")
                     .arg(path, QString::number(scanner.position() + 1));
    }
    return {};
}

}  // namespace Family
