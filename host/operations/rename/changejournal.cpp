#include "operations/rename/changejournal_p.h"

#include "family/project/filereference.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Operations {

namespace {

const QString formatKey = QStringLiteral("zorv-changes");
constexpr int Format = 1;

class Paths
{
public:
    explicit Paths(const QString& gameFolder) : m_game(gameFolder) {}

    QString relative(const QString& path) const { return m_game.relativeFilePath(path); }

    /// An absolute path; a path that leads out of the game makes the journal invalid.
    QString absolute(const QJsonValue& value)
    {
        const QString path = QDir::cleanPath(m_game.absoluteFilePath(value.toString()));
        m_isFine &= value.isString() && !value.toString().isEmpty() &&
                    !value.toString().contains(QChar(QChar::Null)) &&
                    Family::staysInside(m_game.absolutePath(), path);
        return path;
    }

    bool isFine() const { return m_isFine; }

private:
    QDir m_game;
    bool m_isFine = true;
};

QString encoded(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

QByteArray decoded(const QJsonValue& value)
{
    return QByteArray::fromBase64(value.toString().toLatin1());
}

}  // namespace

QString journalPath(const QString& gameFolder)
{
    return gameFolder + QStringLiteral("/.zorv-changes.json");
}

QByteArray journalOf(const ChangeSet& changes, const QString& gameFolder)
{
    const Paths paths(gameFolder);
    QJsonArray texts, assets, moves;
    for (const ChangeSet::Text& text : changes.texts) {
        texts.append(QJsonObject{{QStringLiteral("file"), paths.relative(text.path)},
                                 {QStringLiteral("before"), encoded(text.before)},
                                 {QStringLiteral("after"), encoded(text.after)}});
    }
    for (const ChangeSet::Asset& asset : changes.assets) {
        assets.append(QJsonObject{{QStringLiteral("file"), paths.relative(asset.path)},
                                  {QStringLiteral("kind"), Family::nameKindWord(asset.kind)},
                                  {QStringLiteral("from"), asset.from.text()},
                                  {QStringLiteral("to"), asset.to.text()}});
    }
    for (const ChangeSet::Move& move : changes.moves) {
        moves.append(QJsonObject{{QStringLiteral("from"), paths.relative(move.from)},
                                 {QStringLiteral("to"), paths.relative(move.to)}});
    }
    return QJsonDocument(QJsonObject{{formatKey, Format},
                                     {QStringLiteral("texts"), texts},
                                     {QStringLiteral("assets"), assets},
                                     {QStringLiteral("moves"), moves}})
        .toJson();
}

bool readJournal(const QByteArray& bytes, const QString& gameFolder, ChangeSet* changes)
{
    const QJsonObject journal = QJsonDocument::fromJson(bytes).object();
    Paths paths(gameFolder);
    const QJsonArray texts = journal.value(QLatin1String("texts")).toArray();
    for (const QJsonValue& text : texts) {
        changes->texts.append({paths.absolute(text[QLatin1String("file")]),
                               decoded(text[QLatin1String("before")]),
                               decoded(text[QLatin1String("after")])});
    }
    bool isFine = journal.value(formatKey).toInt() == Format;
    const QJsonArray assets = journal.value(QLatin1String("assets")).toArray();
    for (const QJsonValue& asset : assets) {
        ChangeSet::Asset read{paths.absolute(asset[QLatin1String("file")]),
                              Family::nameKindOf(asset[QLatin1String("kind")].toString()),
                              {},
                              {}};
        isFine &= Family::AssetId::read(asset[QLatin1String("from")].toVariant(), &read.from) &&
                  Family::AssetId::read(asset[QLatin1String("to")].toVariant(), &read.to);
        changes->assets.append(read);
    }
    const QJsonArray moves = journal.value(QLatin1String("moves")).toArray();
    for (const QJsonValue& move : moves) {
        changes->moves.append({paths.absolute(move[QLatin1String("from")]),
                               paths.absolute(move[QLatin1String("to")])});
    }
    return isFine && paths.isFine();
}

}  // namespace Operations
