#include "operations/create/namefile.h"

#include "family/familydocument.h"
#include "family/project/filereference.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace Operations {

using Zorv::FileID;

namespace {

struct NamedRow
{
    const char* suffix;
    const char* key;
    FileID::Type type;
    bool isOne;  ///< only the first entry of this kind counts
};

constexpr NamedRow rows[] = {
    {".code", "code", FileID::Code, false},
    {".anim", "animations", FileID::Animations, false},
    {".commands", "commands", FileID::Commands, false},
    {".sprites", "sprites", FileID::Sprites, true},
    {".sounds", "sounds", FileID::Sounds, true},
};

const NamedRow* rowOf(const QString& suffix)
{
    const auto* const found =
        std::find_if(std::begin(rows), std::end(rows), [&suffix](const NamedRow& row) {
            return suffix == QLatin1String(row.suffix);
        });
    return found == std::end(rows) ? nullptr : found;
}

/// The last line of [files], and the column of its values; invalid if there is no such group.
QTextBlock endOfFiles(const Family::FamilyDocument* main, int* column)
{
    static const QRegularExpression head(QStringLiteral("^\\s*\\[\\s*files\\s*\\]"));
    static const QRegularExpression other(QStringLiteral("^\\s*(\\[|animation\\b)"));
    static const QRegularExpression value(QStringLiteral("^\\s*[^#=\\s]+\\s*="));
    QTextBlock end;
    for (QTextBlock block = main->begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        if (!end.isValid()) {
            end = head.match(text).hasMatch() ? block : end;
        } else if (other.match(text).hasMatch()) {
            break;
        } else if (value.match(text).hasMatch()) {
            end = block;
            *column = text.indexOf(QLatin1Char('='));
        }
    }
    return end;
}

bool isTaken(const Family::FamilyDocument* main, const NamedRow& row, const QString& path)
{
    const QVector<Family::FileReference> named = Family::fileReferences(main);
    return std::any_of(named.begin(), named.end(), [&](const Family::FileReference& reference) {
        return reference.type == row.type && (row.isOne || QDir::cleanPath(reference.path) == path);
    });
}

}  // namespace

bool canBeNamed(const QString& suffix)
{
    return rowOf(suffix);
}

bool nameFile(Family::FamilyDocument* main, const QString& fileName)
{
    const NamedRow* row = rowOf(QLatin1Char('.') + QFileInfo(fileName).suffix().toLower());
    const QString path = QFileInfo(main->fileName()).absoluteDir().relativeFilePath(fileName);
    if (!row || isTaken(main, *row, path)) {
        return false;
    }
    QString quoted = path;
    quoted.replace(QLatin1String("\\"), QLatin1String("\\\\"));
    quoted.replace(QLatin1String("\""), QLatin1String("\\\""));
    int column = 0;
    const QTextBlock end = endOfFiles(main, &column);
    const QString key = QString(QLatin1String(row->key)).leftJustified(column - 1);
    const QString line = QStringLiteral("%1 = \"%2\"").arg(key, quoted);
    QTextCursor cursor(main);
    cursor.beginEditBlock();
    if (end.isValid()) {
        cursor.setPosition(end.position() + end.length() - 1);
        cursor.insertText(QLatin1Char('\n') + line);
    } else {
        cursor.movePosition(QTextCursor::End);
        const QString gap = cursor.atBlockStart() ? QString() : QStringLiteral("\n");
        cursor.insertText(gap + QLatin1String("\n[files]\n") + line + QLatin1Char('\n'));
    }
    cursor.endEditBlock();
    return true;
}

}  // namespace Operations
