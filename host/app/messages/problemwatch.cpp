#include "app/messages/problemwatch.h"

#include "app/messages/problemmodel.h"
#include "app/session/gamesession.h"
#include "app/window/windowservices.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyparentproject.h"
#include "family/project/familyproject.h"
#include "operations/check/backgroundcheck.h"
#include "operations/check/uses.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>

#include <QDir>
#include <QTimer>

// Each signal of a file only adds its path to `m_changed`. A timer then passes all changed files on
// at once: the text of a modified document, or null to make the check read the file again.
// `m_watched` remembers the path of each watched object, because a renamed object changes two
// paths, the old and the new one. A document without a name gets a made-up path in the game folder.

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;

namespace {

constexpr int HandOverTime = 200;  // milliseconds
constexpr int SettleTime = 3000;

const Zorv::FileID::Type assetTypes[] = {Zorv::FileID::Sprites, Zorv::FileID::Sounds};

}  // namespace

ProblemWatch::ProblemWatch(const WindowServices& services)
    : QObject(services.window), m_services(services),
      m_check(new Operations::BackgroundCheck(this)), m_model(new ProblemModel(this)),
      m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(HandOverTime);
    connect(m_timer, &QTimer::timeout, this, &ProblemWatch::handOver);
    connect(m_check, &Operations::BackgroundCheck::changed, this, &ProblemWatch::takeProblems);
    connect(m_check, &Operations::BackgroundCheck::stateChanged, this, [this] {
        m_isFirst = m_isFirst && !m_check->isDone();
        emit summaryChanged();
    });
}

ProblemWatch::~ProblemWatch() = default;

bool ProblemWatch::isOn() const
{
    const QVariant option = Zorv::Interface::instance()->option(QStringLiteral("highlightCode"));
    return !option.isValid() || option.toBool();
}

void ProblemWatch::showGame(Family::FamilyParentProject* game)
{
    m_game = game;
    begin();
}

void ProblemWatch::begin()
{
    const QString folder = isOn() && m_game ? m_game->absolutePath() : QString();
    if (folder == m_folder) {
        return;
    }
    m_folder = folder;
    m_isFirst = true;
    m_check->setGame(folder);
    for (const QString& path : qAsConst(m_watched)) {
        changed(path);
    }
    watchAll();
    emit summaryChanged();
}

void ProblemWatch::showProject(FamilyProject* project)
{
    watchAll();
    m_check->prefer(project ? QStringList(project->fileName()) : QStringList());
}

/// The project's texts are destroyed; from now on their files count.
void ProblemWatch::forgetProject(FamilyProject* project)
{
    const QList<FamilyDocument*> documents = project->documents();
    for (FamilyDocument* document : documents) {
        document->disconnect(this);
        changed(m_watched.take(document));
    }
}

void ProblemWatch::gameChanged()
{
    updateState();
    m_check->look();
}

/// There is no signal when a project gets new files or renames some.
void ProblemWatch::updateState()
{
    watchAll();
}

void ProblemWatch::reconfig()
{
    begin();
}

void ProblemWatch::retranslate()
{
    m_check->forgetAll();
    emit summaryChanged();
}

void ProblemWatch::watchAll()
{
    for (const FamilyProject* project : m_services.session->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            watchDocument(document);
        }
        for (const auto type : assetTypes) {
            const QList<Zorv::ProjectFile*> files = project->filesByType(type);
            for (Zorv::ProjectFile* file : files) {
                watch(file, QDir::cleanPath(file->fileName()));
            }
        }
    }
}

void ProblemWatch::watchDocument(FamilyDocument* document)
{
    const QString known = m_watched.value(document);
    QString path = document->fileName();
    if (path.isEmpty()) {
        path = !known.isEmpty() ? known : m_folder + tr("new file %1").arg(++m_newFiles);
    }
    path = QDir::cleanPath(path);
    if (path == known) {
        return;
    }
    m_watched.insert(document, path);
    changed(known);
    changed(path);
    if (known.isEmpty()) {
        const auto tell = [this, document] { changed(m_watched.value(document)); };
        connect(document, &QTextDocument::contentsChanged, this, tell);
        connect(document, &QTextDocument::modificationChanged, this, tell);
        connect(document, &QObject::destroyed, this,
                [this, document] { changed(m_watched.take(document)); });
    }
}

void ProblemWatch::watch(Zorv::ProjectFile* file, const QString& path)
{
    auto* sprites = dynamic_cast<Family::SpriteCollection*>(file);
    auto* sounds = dynamic_cast<Family::SoundFile*>(file);
    QObject* object = sprites ? static_cast<QObject*>(sprites) : sounds;
    if (!object || m_watched.value(object) == path) {
        return;
    }
    const QString known = m_watched.value(object);
    m_watched.insert(object, path);
    changed(known);
    changed(path);
    if (!known.isEmpty()) {
        return;
    }
    const auto tell = [this, object] { changed(m_watched.value(object)); };
    if (sprites) {
        connect(sprites, &Family::SpriteCollection::modified, this, tell);
        connect(sprites, &Family::SpriteCollection::changed, this, tell);
    } else {
        connect(sounds, &Family::SoundFile::modified, this, tell);
        connect(sounds, &Family::SoundFile::changed, this, tell);
    }
    connect(object, &QObject::destroyed, this, [this, object] { changed(m_watched.take(object)); });
}

void ProblemWatch::changed(const QString& path)
{
    if (!path.isEmpty() && !m_folder.isEmpty()) {
        m_changed.insert(path);
        if (!m_timer->isActive()) {
            m_timer->start();
        }
    }
}

void ProblemWatch::handOver()
{
    m_timer->stop();
    const QSet<QString> paths = std::exchange(m_changed, {});
    for (const QString& path : paths) {
        handOverText(path);
        handOverAssets(path);
    }
}

/// Several projects can each have a document of the same file. The modified one counts; without
/// one, the file itself.
void ProblemWatch::handOverText(const QString& path)
{
    std::shared_ptr<const Family::SourceText> text;
    for (const FamilyProject* project : m_services.session->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (const FamilyDocument* document : documents) {
            if (m_watched.value(document) == path && document->isModified()) {
                text = std::make_shared<const Family::SourceText>(document);
            }
        }
    }
    m_check->setText(path, text);
}

void ProblemWatch::handOverAssets(const QString& path)
{
    Family::FactStore::Assets assets;
    for (const FamilyProject* project : m_services.session->projects()) {
        for (const auto type : assetTypes) {
            const QList<Zorv::ProjectFile*> files = project->filesByType(type);
            for (const Zorv::ProjectFile* file : files) {
                if (file->isModified() && QDir::cleanPath(file->fileName()) == path) {
                    assets = std::make_shared<const Family::AssetFacts>(Family::assetFacts(file));
                }
            }
        }
    }
    m_check->setAssets(path, assets);
}

bool ProblemWatch::settle()
{
    watchAll();
    handOver();
    return m_check->waitForDone(SettleTime);
}

bool ProblemWatch::findUses(const Operations::Removal& what, QStringList* places)
{
    if (m_folder.isEmpty() || !settle()) {
        return false;
    }
    *places = Operations::inWords(Operations::usesOf(what, m_check->projects()));
    return true;
}

/// While checking is off, the files on disk are searched for uses.
bool ProblemWatch::mayRemove(const std::function<Operations::Removal()>& removal)
{
    const bool isSettled = settle();
    const Operations::Removal asked = removal();
    const QVector<Family::NamedPlace> uses = Operations::usesOf(
        asked, m_folder.isEmpty() ? Operations::projectsNaming(asked.path) : m_check->projects());
    if (uses.isEmpty() && isSettled) {
        return true;
    }
    QString text;
    if (!uses.isEmpty()) {
        text = tr("What is to be removed is used in %n place(s):", nullptr, uses.size()) +
               QLatin1String("\n\n") + Operations::inWords(uses).join(QLatin1Char('\n')) +
               QLatin1String("\n\n");
    }
    if (!isSettled) {
        text += (uses.isEmpty() ? tr("The game is still being checked: what uses it is not known.")
                                : tr("The game is still being checked, so there may be more.")) +
                QLatin1Char('\n');
    }
    return Zorv::Dialogs::instance()->question(tr("Remove"), text + tr("Remove it all the same?"),
                                               Zorv::Dialogs::Yes | Zorv::Dialogs::No,
                                               Zorv::Dialogs::Yes) == Zorv::Dialogs::Yes &&
           removal() == asked;
}

void ProblemWatch::takeProblems(const QStringList& files)
{
    const QMap<QString, Family::Problems>& problems = m_check->problems();
    for (const QString& file : files) {
        m_model->setProblems(file, problems.value(file));
    }
    showInTree();
    emit summaryChanged();
}

/// Shows the worst problem level of each file, and for each folder that of its contents.
void ProblemWatch::showInTree()
{
    if (!m_game) {
        return;
    }
    QHash<QString, Family::Problems> found;
    const QMap<QString, Family::Problems>& problems = m_check->problems();
    for (auto it = problems.cbegin(); it != problems.cend(); ++it) {
        found.insert(pathOf(it.key()), it.value());
    }
    m_game->setProblems(found);
}

QString ProblemWatch::nameOf(const QString& path) const
{
    return QDir(m_check->folder()).relativeFilePath(path);
}

QString ProblemWatch::nameOf(const FamilyDocument* document) const
{
    const QString path = m_watched.value(document);
    return path.isEmpty() ? QString() : nameOf(path);
}

QString ProblemWatch::pathOf(const QString& name) const
{
    return QDir::cleanPath(QDir(m_check->folder()).absoluteFilePath(name));
}

FamilyDocument* ProblemWatch::documentOf(const QString& name) const
{
    const QString path = pathOf(name);
    FamilyDocument* found = nullptr;
    for (const FamilyProject* project : m_services.session->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            const bool isIt = m_watched.value(document) == path;
            if (isIt && (!found || (document->isModified() && !found->isModified()))) {
                found = document;
            }
        }
    }
    return found;
}

QString ProblemWatch::summary() const
{
    if (!m_game) {
        return {};
    }
    if (m_folder.isEmpty()) {
        return tr("Not checked");
    }
    const Family::ProblemTally& count = m_model->count();
    return !count.isEmpty() ? count.inWords() : m_isFirst ? tr("Checking...") : tr("No problems");
}

}  // namespace App
