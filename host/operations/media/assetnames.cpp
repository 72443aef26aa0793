#include "operations/media/assetnames.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace Operations {

using Family::AssetId;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::AssetNames)
};

QVector<ImportTarget> targetsInGroup(const QStringList& files, int group,
                                     const std::function<AssetId(AssetId)>& freeId, QString* error)
{
    QVector<ImportTarget> targets;
    AssetId next;
    next.group = quint16(group);
    for (const QString& file : files) {
        const AssetId id = freeId(next);
        if (id.group != group || id < next) {
            *error =
                Text::tr("The group %1 has no room for '%2'.").arg(QString::number(group), file);
            return {};
        }
        targets.append({id, 1});
        next = AssetId::fromKey(id.key() + 1);
    }
    return targets;
}

}  // namespace

QStringList exportNames(const QVector<AssetId>& ids)
{
    QHash<quint32, int> counts;
    QStringList names;
    for (AssetId id : ids) {
        const int count = ++counts[id.key()];
        const QString name =
            QStringLiteral("%1-%2").arg(QString::number(id.group), QString::number(id.number));
        names.append(count == 1 ? name : QStringLiteral("%1_%2").arg(name, QString::number(count)));
    }
    return names;
}

bool importTarget(const QString& fileName, ImportTarget* target)
{
    static const QRegularExpression form(
        QStringLiteral("(?:^|[^0-9])([0-9]{1,5})-([0-9]{1,5})(?:_([0-9]{1,5}))?$"));
    // The file names in a folder of sprites.
    static const QRegularExpression inFolder(
        QStringLiteral("(?:^|[^0-9])([0-9]{1,5})_([0-9]{1,5})$"));
    const QString name = QFileInfo(fileName).completeBaseName();
    QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) {
        match = inFolder.match(name);
    }
    target->copy = match.captured(3).isEmpty() ? 1 : match.captured(3).toInt();
    return match.hasMatch() && target->copy > 0 &&
           AssetId::read(match.captured(1) + QLatin1Char(',') + match.captured(2), &target->id);
}

QVector<ImportTarget> importTargets(const QStringList& files, int group,
                                    const std::function<AssetId(AssetId)>& freeId, QString* error)
{
    if (group >= 0) {
        return targetsInGroup(files, group, freeId, error);
    }
    QVector<ImportTarget> targets;
    QHash<quint64, QString> taken;
    for (const QString& file : files) {
        ImportTarget target;
        if (!importTarget(file, &target)) {
            *error = Text::tr("'%1' does not tell its group and number. Expected a name such as "
                              "'200-3.%2'.")
                         .arg(file, QFileInfo(file).suffix());
            return {};
        }
        QString& other = taken[quint64(target.copy) << 32 | target.id.key()];
        if (!other.isEmpty()) {
            *error = Text::tr("'%1' and '%2' both go to %3.").arg(other, file, target.id.text());
            return {};
        }
        other = file;
        targets.append(target);
    }
    return targets;
}

QVector<AssetId> newIds(const QStringList& files, const std::function<AssetId(AssetId)>& freeId,
                        AssetId first)
{
    QVector<AssetId> ids(files.size());
    QSet<quint32> given;
    const auto give = [&](int file, AssetId from) {
        AssetId id = freeId(from);
        while (given.contains(id.key())) {
            id = freeId(AssetId::fromKey(id.key() + 1));
        }
        given.insert(id.key());
        ids[file] = id;
    };
    QVector<int> nameless;
    for (int i = 0; i < files.size(); ++i) {
        ImportTarget target;
        if (importTarget(files[i], &target)) {
            give(i, target.id);
        } else {
            nameless.append(i);
        }
    }
    for (const int i : qAsConst(nameless)) {
        give(i, first);
        first = AssetId::fromKey(ids[i].key() + 1);  // everything before it is taken
    }
    return ids;
}

}  // namespace Operations
