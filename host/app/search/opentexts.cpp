#include "app/search/opentexts.h"

#include "app/session/gamesession.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/find/gametexts.h"

#include <QDir>
#include <QTimer>

#include <utility>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;

namespace {

constexpr int HandOverTime = 200;  // milliseconds

}  // namespace

OpenTexts::OpenTexts(const GameSession* session, Operations::GameTexts* texts, QObject* parent)
    : QObject(parent), m_session(session), m_texts(texts), m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(HandOverTime);
    connect(m_timer, &QTimer::timeout, this, qOverload<>(&OpenTexts::handOver));
}

void OpenTexts::watchAll()
{
    for (const FamilyProject* project : m_session->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            watch(document);
        }
    }
}

void OpenTexts::watch(FamilyDocument* document)
{
    const QString known = m_watched.value(document);
    const QString path = QDir::cleanPath(document->fileName());
    if (path == known || document->fileName().isEmpty()) {
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

void OpenTexts::changed(const QString& path)
{
    if (!path.isEmpty()) {
        m_changed.insert(path);
        if (!m_timer->isActive()) {
            m_timer->start();
        }
    }
}

void OpenTexts::handOver()
{
    m_timer->stop();
    const QSet<QString> paths = std::exchange(m_changed, {});
    for (const QString& path : paths) {
        handOver(path);
    }
}

void OpenTexts::handOver(const QString& path)
{
    std::shared_ptr<const QString> text;
    for (const FamilyProject* project : m_session->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (const FamilyDocument* document : documents) {
            if (document->isModified() && m_watched.value(document) == path) {
                text = std::make_shared<const QString>(document->text());
            }
        }
    }
    m_texts->setText(path, text);
}

}  // namespace App
