#include "operations/recovery/recoverykeeper.h"

#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "operations/recovery/recoverycopy.h"
#include "operations/recovery/recoveryinput.h"
#include "operations/recovery/sessionfolder.h"
#include "operations/workfile.h"

#include <zorv/core/interface.h>
#include <zorv/core/parentproject.h>
#include <zorv/core/project.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QHash>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>

// A change starts the timer. When it fires, every changed work is copied: texts at once; sprites
// and sounds become a snapshot, which is gathered in parts between other events. The finished copy
// goes to `writer`, a pool of one thread, so that writing, hashing and removing happen in the order
// in which they were requested. The thread reports back through the event queue. While a copy is
// pending, or while a slow one rests, newer changes wait for the next turn of the timer. Each work
// is known by the state that was copied last, so an unchanged one is skipped.

namespace Operations {

using Family::AssetSnapshot;
using Family::FamilyDocument;
using Zorv::ProjectFile;

namespace {

constexpr int MaxSeconds = 24 * 60 * 60;
constexpr int GatherMilliseconds = 4;

// A write slower than `LongWrite` delays the next copy of the same file by `Rest` times its
// duration.
constexpr int LongWrite = 100;  // milliseconds
constexpr int Rest = 10;

/// Identifies one unsaved state of a file.
struct WorkState
{
    int revision = -1;
    int codec = -1;

    bool operator==(const WorkState& other) const
    {
        return revision == other.revision && codec == other.codec;
    }
};

struct Watched
{
    int number = 0;                    ///< of the copy
    int changes = 0;                   ///< number of changes reported
    QString fileName;                  ///< the file of the stamp
    std::shared_ptr<FileStamp> stamp;  ///< once made; read by the writer thread
    bool hasHash = false;              ///< the hash was requested
    WorkState copied;
    WorkState pending;
    bool isPending = false;
    bool hasCopy = false;
    RecoveryCopy content;                         ///< while the snapshot is gathered
    std::shared_ptr<AssetSnapshot> snapshot;      ///< likewise
    std::function<bool(QIODevice*)> writeAssets;  ///< instead of a snapshot, for a `RecoveryInput`
    QDeadlineTimer rest;
};

/// The result of writing a copy.
struct Outcome
{
    QString reason;  ///< of a failure
    qint64 milliseconds = 0;
};

WorkState stateOf(const ProjectFile* file, const Watched& watched)
{
    const auto* document = dynamic_cast<const FamilyDocument*>(file);
    return document ? WorkState{document->revision(), document->codecId()}
                    : WorkState{watched.changes, 0};
}

/// A copy that says where the work belongs, but without its content.
RecoveryCopy copyFor(const ProjectFile* file)
{
    RecoveryCopy content;
    const Zorv::Project* project = file->project();
    content.fileName = file->fileName();
    content.mainFile = project ? project->fileName() : QString();
    content.gameFolder =
        project && project->parent() ? project->parent()->absolutePath() : QString();
    content.time = QDateTime::currentDateTime();
    return content;
}

/// The content to copy; the bytes of sprites and sounds are in the snapshot.
RecoveryCopy contentOf(ProjectFile* file, std::shared_ptr<AssetSnapshot>* snapshot)
{
    RecoveryCopy content = copyFor(file);
    if (const auto* document = dynamic_cast<FamilyDocument*>(file)) {
        content.kind = document->kind();
        content.codec = document->codecName();
        content.text = document->text();
    } else if (auto* sprites = dynamic_cast<Family::SpriteCollection*>(file)) {
        content.content = RecoveryCopy::Sprites;
        *snapshot = sprites->snapshot();
        content.images = (*snapshot)->images;
    } else if (auto* sounds = dynamic_cast<Family::SoundFile*>(file)) {
        content.content = RecoveryCopy::Sounds;
        *snapshot = sounds->snapshot();
    }
    return content;
}

QString writeWhole(const QString& path, const RecoveryCopy& copy,
                   const std::function<bool(QIODevice*)>& writeAssets)
{
    Zorv::SafeFile file(path, Zorv::SafeFile::OwnerOnly);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.failure();
    }
    if (!copy.write(&file, writeAssets)) {
        file.fail(RecoveryKeeper::tr("bytes are missing"));
    }
    return file.commit() ? QString() : file.failure();
}

}  // namespace

struct RecoveryKeeper::Private
{
    RecoveryKeeper* q;
    QString root;
    std::unique_ptr<SessionFolder> folder;
    QHash<ProjectFile*, Watched> files;
    QHash<const RecoveryInput*, Watched> inputs;
    QTimer timer;
    QTimer gathering;
    QThreadPool writer;  ///< one thread, so that writing and removing stay in order
    int ownInterval = -1;
    int lastNumber = 0;
    int pendingCount = 0;
    bool hasFailed = false;
    bool isLate = false;  ///< something was postponed at the last turn

    void setStamp(Watched* watched, const QString& fileName);
    void addHash(Watched* watched);
    void changed(ProjectFile* file);
    void synchronized(ProjectFile* file);
    void startTimer();
    void drop(Watched* watched);
    bool needsCopy(ProjectFile* file) const;
    bool needsCopy(const RecoveryInput* input) const;
    template <class Work>
    void copyThose(QHash<Work*, Watched>& works, bool isUrgent);
    void copyAll(bool isUrgent);
    bool begin(Watched* watched);
    void copy(ProjectFile* file, Watched* watched);
    void copy(const RecoveryInput* input, Watched* watched);
    Watched* find(int number);
    void tellIfCopied();
    void gather(int milliseconds);
    void forgetSnapshot(Watched* watched);
    void write(Watched* watched);
    void written(int number, const Outcome& outcome);
    void fail(const QString& reason);
};

RecoveryKeeper::RecoveryKeeper(const QString& root, QObject* parent)
    : QObject(parent), d(new Private)
{
    d->q = this;
    d->root = root;
    d->writer.setMaxThreadCount(1);
    d->timer.setSingleShot(true);
    connect(&d->timer, &QTimer::timeout, this, [this] { d->copyAll(false); });
    connect(&d->gathering, &QTimer::timeout, this, [this] { d->gather(GatherMilliseconds); });
}

RecoveryKeeper::~RecoveryKeeper()
{
    d->writer.waitForDone();
    if (d->folder) {
        d->folder->removeCopies();
    }
}

void RecoveryKeeper::setInterval(int interval)
{
    d->ownInterval = interval;
}

int RecoveryKeeper::interval() const
{
    const QVariant seconds =
        Zorv::Interface::instance()->option(QStringLiteral("recovery_seconds"));
    return d->ownInterval >= 0 ? d->ownInterval : qBound(0, seconds.toInt(), MaxSeconds) * 1000;
}

void RecoveryKeeper::watch(ProjectFile* file)
{
    if (d->files.contains(file)) {
        return;
    }
    Watched watched;
    watched.number = ++d->lastNumber;
    d->setStamp(&watched, file->fileName());
    d->files.insert(file, watched);
    WorkEvents events;
    events.changed = [this, file] { d->changed(file); };
    events.synchronized = [this, file] { d->synchronized(file); };
    events.gone = [this, file] {
        Watched gone = d->files.take(file);
        d->drop(&gone);
    };
    followWork(file, this, events);
    d->changed(file);
}

void RecoveryKeeper::watchInput(const RecoveryInput* input)
{
    d->inputs[input].number = ++d->lastNumber;
    inputChanged(input);
}

/// The copy has the stamp of the open file, because that is what it would be applied to.
void RecoveryKeeper::inputChanged(const RecoveryInput* input)
{
    ProjectFile* file = input->file();
    Watched& watched = d->inputs[input];
    ++watched.changes;
    if (!file) {
        d->drop(&watched);
        return;
    }
    watch(file);
    d->addHash(&d->files[file]);
    d->startTimer();
}

QString RecoveryKeeper::folder() const
{
    return d->folder ? d->folder->path() : QString();
}

bool RecoveryKeeper::flush()
{
    // A copy that is already being written may be older than the last change, hence two rounds.
    for (int i = 0; i < 2; ++i) {
        d->copyAll(true);
        d->gather(-1);
        d->writer.waitForDone();
        // Delivers the results of the writer thread.
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    }
    const auto isCopied = [this](auto* work) { return !d->needsCopy(work); };
    return std::all_of(d->files.keyBegin(), d->files.keyEnd(), isCopied) &&
           std::all_of(d->inputs.keyBegin(), d->inputs.keyEnd(), isCopied);
}

// Scanning the images of a folder takes a while, so the writer thread does it.
void RecoveryKeeper::Private::setStamp(Watched* watched, const QString& fileName)
{
    watched->fileName = fileName;
    watched->hasHash = false;
    watched->stamp = std::make_shared<FileStamp>();
    if (QFileInfo(fileName).isDir()) {
        writer.start([stamp = watched->stamp, fileName] { *stamp = FileStamp::of(fileName); });
    } else {
        *watched->stamp = FileStamp::of(fileName);
    }
}

// Hashes only at the first change, because most files are opened and never changed.
void RecoveryKeeper::Private::addHash(Watched* watched)
{
    if (!watched->hasHash) {
        watched->hasHash = true;
        writer.start(
            [stamp = watched->stamp, fileName = watched->fileName] { stamp->addHash(fileName); });
    }
}

/// Work that depends on the file is copied again, with the new stamp.
void RecoveryKeeper::Private::synchronized(ProjectFile* file)
{
    setStamp(&files[file], file->fileName());
    const QList<const RecoveryInput*> known = inputs.keys();
    for (const RecoveryInput* input : known) {
        if (input->file() == file) {
            q->inputChanged(input);
        }
    }
}

void RecoveryKeeper::Private::changed(ProjectFile* file)
{
    Watched& watched = files[file];
    ++watched.changes;
    if (!file->isModified()) {
        drop(&watched);
        return;
    }
    // After "save as", the new file name is only known now.
    if (watched.fileName != file->fileName()) {
        setStamp(&watched, file->fileName());
    }
    addHash(&watched);
    startTimer();
}

void RecoveryKeeper::Private::startTimer()
{
    if (timer.isActive()) {
        return;
    }
    const int interval = q->interval();
    if (interval > 0) {
        timer.start(interval);
    }
}

void RecoveryKeeper::Private::drop(Watched* watched)
{
    watched->copied = WorkState();
    watched->pending = WorkState();
    forgetSnapshot(watched);
    if (folder && (watched->hasCopy || watched->isPending)) {
        writer.start([path = folder->copyPath(watched->number)] { QFile::remove(path); });
        watched->hasCopy = false;
    }
}

bool RecoveryKeeper::Private::needsCopy(ProjectFile* file) const
{
    const Watched& watched = *files.constFind(file);
    return file->isModified() && !(watched.copied == stateOf(file, watched));
}

bool RecoveryKeeper::Private::needsCopy(const RecoveryInput* input) const
{
    const Watched& watched = *inputs.constFind(input);
    return input->file() && !(watched.copied == WorkState{watched.changes, 0});
}

template <class Work>
void RecoveryKeeper::Private::copyThose(QHash<Work*, Watched>& works, bool isUrgent)
{
    for (auto it = works.begin(); it != works.end(); ++it) {
        if (!needsCopy(it.key())) {
            continue;
        }
        if (it->isPending || !(isUrgent || it->rest.hasExpired())) {
            isLate = true;
        } else {
            copy(it.key(), &it.value());
        }
    }
}

void RecoveryKeeper::Private::copyAll(bool isUrgent)
{
    const bool wasLate = isLate;
    isLate = false;
    copyThose(files, isUrgent);
    copyThose(inputs, isUrgent);
    if (isLate) {
        startTimer();
    } else if (wasLate) {
        tellIfCopied();
    }
}

void RecoveryKeeper::Private::tellIfCopied()
{
    if (pendingCount == 0 && !isLate) {
        hasFailed = false;
        emit q->copied();
    }
}

/// False if there is no folder for the copies.
bool RecoveryKeeper::Private::begin(Watched* watched)
{
    QString error;
    if (!folder && !(folder = SessionFolder::create(root, &error))) {
        fail(RecoveryKeeper::tr("Unsaved work cannot be put aside. %1").arg(error));
        return false;
    }
    watched->isPending = true;
    ++pendingCount;
    return true;
}

void RecoveryKeeper::Private::copy(ProjectFile* file, Watched* watched)
{
    if (!begin(watched)) {
        return;
    }
    watched->content = contentOf(file, &watched->snapshot);
    watched->pending = stateOf(file, *watched);
    if (watched->snapshot) {
        gathering.start();
    } else {
        write(watched);
    }
}

void RecoveryKeeper::Private::copy(const RecoveryInput* input, Watched* watched)
{
    if (!begin(watched)) {
        return;
    }
    ProjectFile* file = input->file();
    watched->stamp = files[file].stamp;
    watched->content = copyFor(file);
    watched->writeAssets = input->take(&watched->content);
    watched->pending = {watched->changes, 0};
    write(watched);
}

/// Gathers one file per turn, or all of them if `milliseconds` is negative.
void RecoveryKeeper::Private::gather(int milliseconds)
{
    bool isDone = false;
    bool isMore = false;
    for (auto it = files.begin(); it != files.end(); ++it) {
        if (it->snapshot && !isDone) {
            it->snapshot->gather(milliseconds);
            isDone = milliseconds >= 0;
            if (it->snapshot->isWhole()) {
                write(&it.value());
            } else if (it->snapshot->isCanceled()) {
                forgetSnapshot(&it.value());
                startTimer();
            }
        }
        isMore = isMore || it->snapshot;
    }
    isMore ? gathering.start() : gathering.stop();
}

/// Discards a snapshot that was not passed to the writer thread yet.
void RecoveryKeeper::Private::forgetSnapshot(Watched* watched)
{
    if (watched->snapshot) {
        watched->snapshot.reset();
        watched->content = RecoveryCopy();
        watched->isPending = false;
        --pendingCount;
    }
}

void RecoveryKeeper::Private::write(Watched* watched)
{
    if (watched->snapshot) {
        watched->writeAssets = [snapshot = watched->snapshot](QIODevice* device) {
            return snapshot->write(device);
        };
    }
    writer.start([this, content = watched->content, writeAssets = watched->writeAssets,
                  stamp = watched->stamp, number = watched->number,
                  path = folder->copyPath(watched->number)]() mutable {
        QElapsedTimer clock;
        clock.start();
        content.stamp = *stamp;
        Outcome outcome;
        outcome.reason = writeWhole(path, content, writeAssets);
        outcome.milliseconds = clock.elapsed();
        QMetaObject::invokeMethod(
            q, [this, number, outcome] { written(number, outcome); }, Qt::QueuedConnection);
    });
    watched->content = RecoveryCopy();
    watched->snapshot.reset();
    watched->writeAssets = nullptr;
}

/// Null if the work is gone.
Watched* RecoveryKeeper::Private::find(int number)
{
    for (Watched& each : files) {
        if (each.number == number) {
            return &each;
        }
    }
    for (Watched& each : inputs) {
        if (each.number == number) {
            return &each;
        }
    }
    return nullptr;
}

void RecoveryKeeper::Private::written(int number, const Outcome& outcome)
{
    --pendingCount;
    const bool isDone = outcome.reason.isEmpty();
    if (Watched* found = find(number)) {
        found->isPending = false;
        const bool isLong = outcome.milliseconds > LongWrite;
        found->rest.setRemainingTime(isLong ? Rest * outcome.milliseconds : 0);
        // Without a pending state, the copy was dropped while it was being written.
        found->hasCopy = found->hasCopy || (isDone && found->pending.revision >= 0);
        if (isDone) {
            found->copied = found->pending;
        }
    }
    if (!isDone) {
        fail(RecoveryKeeper::tr("Unsaved work cannot be put aside. Save often, and make room on "
                                "the disk. %1")
                 .arg(outcome.reason));
    } else {
        tellIfCopied();
    }
}

void RecoveryKeeper::Private::fail(const QString& reason)
{
    startTimer();
    if (!hasFailed) {
        hasFailed = true;
        emit q->failed(reason);
    }
}

}  // namespace Operations
