#include "operations/recovery/recoverykeeper.h"

#include "family/familydocument.h"
#include "operations/recovery/recoverycopy.h"
#include "operations/recovery/sessionfolder.h"

#include <zorv/core/interface.h>
#include <zorv/core/parentproject.h>
#include <zorv/core/project.h>
#include <zorv/core/safefile.h>

#include <QCoreApplication>
#include <QHash>
#include <QThreadPool>
#include <QTimer>

namespace Operations {

using Family::FamilyDocument;

namespace {

constexpr int MaxSeconds = 24 * 60 * 60;

/// What tells one unsaved state of a text from another.
struct TextState
{
    int revision = -1;
    int codec = -1;

    static TextState of(const FamilyDocument* document)
    {
        return {document->revision(), document->codecId()};
    }

    bool operator==(const TextState& other) const
    {
        return revision == other.revision && codec == other.codec;
    }
};

struct Watched
{
    int number = 0;                    ///< of the copy
    QString fileName;                  ///< whose stamp it is
    std::shared_ptr<FileStamp> stamp;  ///< the hash is added by the thread that writes
    bool hasHash = false;              ///< or it is on its way
    TextState copied;
    TextState pending;
    bool isPending = false;
    bool hasCopy = false;

    void setStamp(const QString& name)
    {
        fileName = name;
        stamp = std::make_shared<FileStamp>(FileStamp::of(name));
        hasHash = false;
    }
};

}  // namespace

struct RecoveryKeeper::Private
{
    RecoveryKeeper* q;
    QString root;
    std::unique_ptr<SessionFolder> folder;
    QHash<FamilyDocument*, Watched> documents;
    QTimer timer;
    QThreadPool writer;  ///< of one thread: what is written and removed keeps its order
    int ownInterval = -1;
    int lastNumber = 0;
    int pendingCount = 0;
    bool hasFailed = false;

    void documentChanged(FamilyDocument* document);
    void startTimer();
    void drop(Watched* watched);
    bool needsCopy(FamilyDocument* document) const;
    void copyAll();
    void copy(FamilyDocument* document, Watched* watched);
    void written(FamilyDocument* document, int number, const QString& reason);
    void fail(const QString& reason);
};

RecoveryKeeper::RecoveryKeeper(const QString& root, QObject* parent)
    : QObject(parent), d(new Private)
{
    d->q = this;
    d->root = root;
    d->writer.setMaxThreadCount(1);
    d->timer.setSingleShot(true);
    connect(&d->timer, &QTimer::timeout, this, [this] { d->copyAll(); });
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

void RecoveryKeeper::watch(FamilyDocument* document)
{
    if (d->documents.contains(document)) {
        return;
    }
    Watched watched;
    watched.number = ++d->lastNumber;
    watched.setStamp(document->fileName());
    d->documents.insert(document, watched);
    const auto changed = [this, document] { d->documentChanged(document); };
    connect(document, &QTextDocument::contentsChanged, this, changed);
    connect(document, &QTextDocument::modificationChanged, this, changed);
    connect(document, &QObject::destroyed, this, [this, document] {
        Watched gone = d->documents.take(document);
        d->drop(&gone);
    });
    d->documentChanged(document);
}

QString RecoveryKeeper::folder() const
{
    return d->folder ? d->folder->path() : QString();
}

bool RecoveryKeeper::flush()
{
    d->copyAll();
    d->writer.waitForDone();
    // The answers of the other thread are on their way.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    for (auto it = d->documents.constBegin(); it != d->documents.constEnd(); ++it) {
        if (d->needsCopy(it.key())) {
            return false;
        }
    }
    return true;
}

// A document without changes was just read or written: its file is what counts
// from now on. The hash is taken with the first change only, for most files are
// looked at and no more.
void RecoveryKeeper::Private::documentChanged(FamilyDocument* document)
{
    Watched& watched = documents[document];
    if (!document->isModified()) {
        drop(&watched);
        watched.setStamp(document->fileName());
        return;
    }
    // A document that is saved under another name hears of the name last.
    if (watched.fileName != document->fileName()) {
        watched.setStamp(document->fileName());
    }
    if (!watched.hasHash) {
        watched.hasHash = true;
        writer.start(
            [stamp = watched.stamp, fileName = watched.fileName] { stamp->addHash(fileName); });
    }
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
    watched->copied = TextState();
    watched->pending = TextState();
    if (folder && (watched->hasCopy || watched->isPending)) {
        writer.start([path = folder->copyPath(watched->number)] { QFile::remove(path); });
        watched->hasCopy = false;
    }
}

bool RecoveryKeeper::Private::needsCopy(FamilyDocument* document) const
{
    return document->isModified() && !(documents.value(document).copied == TextState::of(document));
}

void RecoveryKeeper::Private::copyAll()
{
    bool isLate = false;
    for (auto it = documents.begin(); it != documents.end(); ++it) {
        if (!needsCopy(it.key())) {
            continue;
        }
        if (it->isPending) {
            isLate = true;
        } else {
            copy(it.key(), &it.value());
        }
    }
    if (isLate) {
        startTimer();
    }
}

void RecoveryKeeper::Private::copy(FamilyDocument* document, Watched* watched)
{
    QString error;
    if (!folder && !(folder = SessionFolder::create(root, &error))) {
        fail(RecoveryKeeper::tr("Unsaved texts cannot be put aside. %1").arg(error));
        return;
    }
    RecoveryCopy content;
    const Zorv::Project* project = document->project();
    content.fileName = document->fileName();
    content.mainFile = project ? project->fileName() : QString();
    content.gameFolder =
        project && project->parent() ? project->parent()->absolutePath() : QString();
    content.kind = document->kind();
    content.codec = document->codecName();
    content.time = QDateTime::currentDateTime();
    content.text = document->text();
    watched->pending = TextState::of(document);
    watched->isPending = true;
    ++pendingCount;
    writer.start([this, document, content, stamp = watched->stamp, number = watched->number,
                  path = folder->copyPath(watched->number)]() mutable {
        content.stamp = *stamp;
        QString reason;
        Zorv::SafeFile::save(path, content.toBytes(), &reason, Zorv::SafeFile::OwnerOnly);
        QMetaObject::invokeMethod(
            q, [this, document, number, reason] { written(document, number, reason); },
            Qt::QueuedConnection);
    });
}

void RecoveryKeeper::Private::written(FamilyDocument* document, int number, const QString& reason)
{
    --pendingCount;
    const auto found = documents.find(document);
    if (found != documents.end() && found->number == number) {
        found->isPending = false;
        // It was dropped meanwhile if nothing is pending any more.
        found->hasCopy = found->hasCopy || (reason.isEmpty() && found->pending.revision >= 0);
        if (reason.isEmpty()) {
            found->copied = found->pending;
        }
    }
    if (!reason.isEmpty()) {
        fail(RecoveryKeeper::tr("Unsaved texts cannot be put aside. %1").arg(reason));
    } else if (pendingCount == 0) {
        hasFailed = false;
        emit q->copied();
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
