#include "family/assets/folderlist.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace Family {

namespace {

const QLatin1String paletteWord("palette");
const QLatin1String remapWord("remap");

QString pointText(QPoint point)
{
    return QStringLiteral("%1,%2").arg(QString::number(point.x()), QString::number(point.y()));
}

/// Reads a line that is not a comment; false if it is malformed.
bool readLine(const QString& line, FolderList* list)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^(palette|remap|image)\s+(\d+,\d+)\s+(?:(-?\d+),(-?\d+)\s+)?(\S.*)$)"));
    const QRegularExpressionMatch match = form.match(line);
    AssetId id;
    if (!match.hasMatch() || !AssetId::read(match.captured(2), &id)) {
        return false;
    }
    const QString word = match.captured(1);
    const QString rest = match.captured(5);
    const bool hasPoint = !match.captured(3).isEmpty();
    if (word == remapWord) {
        AssetId to;
        const bool fine = !hasPoint && AssetId::read(rest, &to);
        if (fine) {
            list->remaps.append({id, to});
        }
        return fine;
    }
    if (word == paletteWord) {
        list->palettes.append({id, rest});
        return !hasPoint;
    }
    list->images.append({rest, id, {match.captured(3).toInt(), match.captured(4).toInt()}});
    return hasPoint;
}

}  // namespace

FolderList FolderList::read(const QString& text, QStringList* problems)
{
    FolderList list;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')) && !readLine(line, &list)) {
            list.unknown.append(line);
            problems->append(QCoreApplication::translate("Family::FolderList",
                                                         "Line %1 of %2 makes no sense: %3")
                                 .arg(QString::number(i + 1), fileName(), line));
        }
    }
    return list;
}

QString FolderList::text() const
{
    QString text = QStringLiteral("# image GROUP,NUMBER AXISX,AXISY FILE\n");
    for (const Image& image : images) {
        text += QStringLiteral("image %1 %2 %3\n")
                    .arg(image.id.text(), pointText(image.axis), image.file);
    }
    for (const Palette& palette : palettes) {
        text += QStringLiteral("palette %1 %2\n").arg(palette.id.text(), palette.file);
    }
    for (const auto& remap : remaps) {
        text += QStringLiteral("remap %1 %2\n").arg(remap.first.text(), remap.second.text());
    }
    for (const QString& line : unknown) {
        text += line + QLatin1Char('\n');
    }
    return text;
}

QString FolderList::noFile()
{
    return QStringLiteral("-");
}

QString FolderList::fileName()
{
    return QStringLiteral("sprites.txt");
}

}  // namespace Family
