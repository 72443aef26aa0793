#include "operations/rename/changeset.h"

#include "family/check/diskstate.h"
#include "operations/rename/changejournal_p.h"
#include "operations/rename/preparedfiles_p.h"
#include "operations/rename/renumbering_p.h"

#include <zorv/core/filechange.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>

// The journal is the point of no return. Before it is written, nothing is replaced. After that,
// each file is in its old or its new state, and looking at it shows which. So work left by a killed
// program can always be completed one way or the other.

namespace Operations {

namespace {

constexpr int LongestWait = 20000;
constexpr qint64 LargestJournal = qint64(1) << 30;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ChangeSet)
};

enum class State { Before, After, Other };

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

State stateOf(const ChangeSet::Text& text, const ChangeSet& changes)
{
    const QString moved = changes.movedPath(text.path);
    const QByteArray content = contentOf(QFile::exists(text.path) ? text.path : moved);
    return content == text.before  ? State::Before
           : content == text.after ? State::After
                                   : State::Other;
}

State stateOf(const ChangeSet::Asset& asset, const ChangeSet& changes)
{
    QVector<Family::AssetId> ids;
    const QString moved = changes.movedPath(asset.path);
    readIds(QFile::exists(asset.path) ? asset.path : moved, asset.kind, &ids);
    const bool hasOld = ids.contains(asset.from);
    const bool hasNew = ids.contains(asset.to);
    return hasOld && !hasNew ? State::Before : hasNew && !hasOld ? State::After : State::Other;
}

State stateOf(const ChangeSet::Move& move, const ChangeSet&)
{
    const bool hasOld = QFileInfo::exists(move.from);
    const bool hasNew = QFileInfo::exists(move.to);
    return hasOld && !hasNew ? State::Before : hasNew && !hasOld ? State::After : State::Other;
}

QString pathOf(const ChangeSet::Text& text)
{
    return text.path;
}

QString pathOf(const ChangeSet::Asset& asset)
{
    return asset.path;
}

QString pathOf(const ChangeSet::Move& move)
{
    return move.from;
}

/// Calls `see(each, its path)` for every part, in the order in which changes are made.
template <class See>
void forAll(const ChangeSet& changes, See see)
{
    std::for_each(changes.assets.begin(), changes.assets.end(), see);
    std::for_each(changes.texts.begin(), changes.texts.end(), see);
    std::for_each(changes.moves.begin(), changes.moves.end(), see);
}

bool moveFile(const ChangeSet::Move& move, QString* error)
{
    if (!QFileInfo::exists(move.to) && QDir().rename(move.from, move.to)) {
        return true;
    }
    *error = Text::tr("%1 cannot be called %2. Check that there is no such file, and that its "
                      "folder can be written to.")
                 .arg(QDir::toNativeSeparators(move.from), QDir::toNativeSeparators(move.to));
    return false;
}

/// The new files, ready to replace the old ones, and copies of the old ones to go back to.
class Replacement
{
public:
    explicit Replacement(const ChangeSet& changes) : m_changes(changes) {}

    bool prepare(QString* error);
    bool run(QString* error);
    bool takeBack();

private:
    const ChangeSet& m_changes;
    std::vector<std::unique_ptr<Zorv::FileChange>> m_watched;
    PreparedFiles m_new;
    PreparedFiles m_old;
    int m_replaced = 0;
    int m_moved = 0;
};

/// If another program changes a file from now on, its replacement fails.
bool Replacement::prepare(QString* error)
{
    bool isFine = true;
    forAll(m_changes, [&](const auto& each) {
        m_watched.push_back(std::make_unique<Zorv::FileChange>(pathOf(each)));
        if (isFine && stateOf(each, m_changes) != State::Before) {
            *error = Text::tr("%1 has been changed meanwhile. Nothing is written. Try again.")
                         .arg(QDir::toNativeSeparators(pathOf(each)));
            isFine = false;
        }
    });
    for (const ChangeSet::Asset& asset : m_changes.assets) {
        isFine = isFine && renumber(asset, &m_new, error) && m_old.addCopy(asset.path, error);
    }
    for (const ChangeSet::Text& text : m_changes.texts) {
        isFine =
            isFine && m_new.add(text.path, text.after, error) && m_old.addCopy(text.path, error);
    }
    return isFine;
}

bool Replacement::run(QString* error)
{
    for (; m_replaced < m_new.count(); ++m_replaced) {
        if (!m_new.commit(m_replaced, error)) {
            return false;
        }
    }
    for (; m_moved < m_changes.moves.size(); ++m_moved) {
        if (!moveFile(m_changes.moves.at(m_moved), error)) {
            return false;
        }
    }
    return true;
}

bool Replacement::takeBack()
{
    QString error;
    bool isDone = true;
    while (m_moved > 0) {
        const ChangeSet::Move& move = m_changes.moves.at(--m_moved);
        isDone &= moveFile({move.to, move.from}, &error);
    }
    while (m_replaced > 0) {
        isDone &= m_old.commit(--m_replaced, &error);
    }
    return isDone;
}

/// Completes the unfinished part of a change, file by file.
class Settling
{
public:
    Settling(const ChangeSet& changes, QStringList* lines) : m_changes(changes), m_lines(lines) {}

    /// False if something could not be done.
    bool run()
    {
        int done = 0, open = 0;
        forAll(m_changes, [&](const auto& each) {
            const State state = stateOf(each, m_changes);
            done += state == State::After;
            open += state == State::Before;
        });
        if (open == 0 || done == 0) {
            return true;
        }
        bool isDone = true;
        forAll(m_changes, [&](const auto& each) {
            if (stateOf(each, m_changes) == State::Before) {
                isDone = finish(each) && isDone;
            } else if (stateOf(each, m_changes) == State::Other) {
                m_lines->append(Text::tr("%1 has been changed since, and stays as it is.")
                                    .arg(QDir::toNativeSeparators(pathOf(each))));
            }
        });
        m_lines->append(
            isDone ? Text::tr("A change of several files that was cut off is finished now.")
                   : Text::tr("A change of several files was cut off, and cannot be finished."));
        return isDone;
    }

private:
    bool finish(const ChangeSet::Text& text)
    {
        QString error;
        return Zorv::SafeFile::save(text.path, text.after, &error) || tell(error);
    }
    bool finish(const ChangeSet::Asset& asset)
    {
        QString error;
        return renumber(asset, Zorv::FileSystemArchive::instance(), &error) || tell(error);
    }
    bool finish(const ChangeSet::Move& move)
    {
        QString error;
        return moveFile(move, &error) || tell(error);
    }
    bool tell(const QString& error)
    {
        m_lines->append(error);
        return false;
    }

    const ChangeSet& m_changes;
    QStringList* m_lines;
};

}  // namespace

ChangeSet ChangeSet::reversed() const
{
    ChangeSet back;
    for (const Text& text : texts) {
        back.texts.append({movedPath(text.path), text.after, text.before});
    }
    for (const Asset& asset : assets) {
        back.assets.append({movedPath(asset.path), asset.kind, asset.to, asset.from});
    }
    for (const Move& move : moves) {
        back.moves.prepend({move.to, move.from});
    }
    return back;
}

QString ChangeSet::movedPath(const QString& path) const
{
    for (const Move& move : moves) {
        if (path == move.from) {
            return move.to;
        }
    }
    return path;
}

bool writeChanges(const ChangeSet& changes, const QString& gameFolder, QString* error)
{
    const QString journal = journalPath(gameFolder);
    Zorv::FileChange turn(journal);
    if (!turn.lock(LongestWait, error)) {
        return false;
    }
    const QStringList left = settleChanges(gameFolder);
    if (!left.isEmpty()) {
        *error = left.join(QLatin1Char('\n'));
        return false;
    }
    Replacement replacement(changes);
    if (!replacement.prepare(error) ||
        !Zorv::SafeFile::save(journal, journalOf(changes, gameFolder), error)) {
        return false;
    }
    const bool isDone = replacement.run(error);
    if (!isDone && !replacement.takeBack()) {
        *error += QLatin1Char('\n') + Text::tr("Some files have changed already and could not be "
                                               "changed back. The rest is done the next time that "
                                               "the game is opened.");
        return false;
    }
    // If removing fails, the journal left behind is harmless: everything in it is done, or nothing
    // is.
    QFile::remove(journal);
    return isDone;
}

QStringList settleChanges(const QString& gameFolder)
{
    const QString journal = journalPath(gameFolder);
    if (!QFileInfo::exists(journal)) {
        return {};
    }
    QString error;
    Zorv::FileChange turn(journal);
    if (!turn.lock(LongestWait, &error)) {
        return {error};
    }
    // Another process may have completed the change while this one waited for the lock.
    if (!QFileInfo::exists(journal)) {
        return {};
    }
    ChangeSet changes;
    QStringList lines;
    if (QFileInfo(journal).size() > LargestJournal ||
        !readJournal(contentOf(journal), gameFolder, &changes)) {
        return {Text::tr("%1 should tell of a change of several files, but cannot be read. Look "
                         "whether names are as they should be, and remove it.")
                    .arg(QDir::toNativeSeparators(journal))};
    }
    if (Settling(changes, &lines).run()) {
        QFile::remove(journal);
    } else {
        lines.append(Text::tr("It is tried again the next time. To leave all as it is, remove %1.")
                         .arg(QDir::toNativeSeparators(journal)));
    }
    return lines;
}

}  // namespace Operations
