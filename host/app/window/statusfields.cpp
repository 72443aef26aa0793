#include "app/window/statusfields.h"

#include "app/look/language.h"
#include "app/session/gamesession.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/documentfile.h"

#include <zorv/core/fileinput.h>

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QStatusBar>
#include <QToolButton>

namespace App {

using Zorv::FileInput;

namespace {

constexpr int PassingTime = 8000;  // milliseconds
constexpr int PlaceField = 0;
constexpr int ProblemsField = 1;
constexpr int EncodingField = 2;
constexpr int StageField = 3;

QString stateOf(const Family::FamilyDocument* document)
{
    if (document->fileName().isEmpty()) {
        return StatusFields::tr("Not saved yet");
    }
    if (isGone(document)) {
        return StatusFields::tr("Missing on disk");
    }
    return FileInput::isUnsaved(document) ? StatusFields::tr("Modified")
                                          : StatusFields::tr("Saved");
}

/// The state also covers the sprites and sounds of the text's project.
QString stateWithAssets(const Family::FamilyDocument* document)
{
    QStringList parts{stateOf(document)};
    const Family::FamilyProject* project = projectOf(document);
    if (project && FileInput::isUnsaved(project->sprites())) {
        parts.append(StatusFields::tr("sprites modified"));
    }
    if (project && FileInput::isUnsaved(project->sounds())) {
        parts.append(StatusFields::tr("sounds modified"));
    }
    return parts.join(QLatin1String(", "));
}

/// A screen reader says what the field is, then its text.
void setText(QLabel* label, const QString& text, const QString& name)
{
    label->setText(text);
    label->setAccessibleName(text.isEmpty() ? QString() : name.arg(text));
}

void setHelp(QToolButton* button, const QString& help)
{
    button->setToolTip(help);
    button->setAccessibleDescription(help);
}

}  // namespace

StatusFields::StatusFields(QStatusBar* bar)
    : QObject(bar), m_bar(bar), m_stage(new QLabel(bar)), m_problems(addButton("problems_field")),
      m_state(new QLabel(bar)), m_lineEnds(new QLabel(bar)),
      m_encoding(addButton("encoding_field")), m_place(addButton("place_field")),
      m_watcher(new QFileSystemWatcher(this))
{
    for (QWidget* widget : {static_cast<QWidget*>(m_stage), static_cast<QWidget*>(m_problems),
                            static_cast<QWidget*>(m_state), static_cast<QWidget*>(m_lineEnds),
                            static_cast<QWidget*>(m_encoding), static_cast<QWidget*>(m_place)}) {
        bar->addPermanentWidget(widget);
    }
    connect(m_problems, &QToolButton::clicked, this, &StatusFields::problemsClicked);
    connect(m_encoding, &QToolButton::clicked, this, &StatusFields::encodingClicked);
    connect(m_place, &QToolButton::clicked, this, &StatusFields::placeClicked);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &StatusFields::updateFile);
    setStagePlace({});
    StatusFields::showDocument(nullptr);
    followLanguage(this, [this] { retranslate(); });
}

void StatusFields::retranslate()
{
    updateProblemHelp();
    setHelp(m_encoding, tr("Encoding of the file. Click to change it."));
    setHelp(m_place, tr("Line and column. Click to go to a line."));
    setStagePlace({});
    m_bar->clearMessage();
    updateFile();
}

void StatusFields::updateProblemHelp()
{
    const QString help = tr("Problems of the game. Click for the list.");
    setHelp(m_problems, m_document && !m_fileProblems.isEmpty()
                            ? help + QLatin1Char('\n') + m_fileProblems
                            : help);
}

void StatusFields::showDocument(Family::FamilyDocument* document)
{
    if (m_document) {
        m_document->disconnect(this);
    }
    m_document = document;
    if (document) {
        connect(document, &QTextDocument::modificationChanged, this, &StatusFields::updateFile);
    }
    watchFolder();
    updateFile();
}

/// The file may be in another folder now.
void StatusFields::gameChanged()
{
    showDocument(m_document);
}

void StatusFields::updateState()
{
    setText(m_state, m_document ? stateWithAssets(m_document) : QString(),
            tr("State of the file: %1"));
}

void StatusFields::updateFile()
{
    updateState();
    const QString note = m_document ? Operations::lineEndNote(m_document) : QString();
    setText(m_lineEnds, note.isEmpty() ? QString() : tr("Line ends: converted when saved"),
            QStringLiteral("%1"));
    m_lineEnds->setToolTip(note);
    m_lineEnds->setVisible(!note.isEmpty());
    m_encoding->setText(m_document ? tr("Encoding: %1").arg(m_document->codecName()) : QString());
    m_encoding->setEnabled(m_document);
    m_place->setEnabled(m_document);
    if (!m_document) {
        m_place->setText({});
        m_fileProblems.clear();
    }
    updateProblemHelp();
}

void StatusFields::setProblems(const QString& text)
{
    m_problems->setText(text);
    m_problems->setEnabled(!text.isEmpty());
}

void StatusFields::setStagePlace(const QString& text)
{
    setText(m_stage, text, tr("Place of the pointer on the stage: %1"));
    m_stage->setVisible(!text.isEmpty());
}

void StatusFields::showField(int field, const QString& text)
{
    switch (field) {
    case PlaceField:
        m_place->setText(text);
        break;
    case ProblemsField:
        m_fileProblems = text;
        updateProblemHelp();
        break;
    case EncodingField:
        m_encoding->setText(text);
        break;
    case StageField:
        setStagePlace(text);
        break;
    default:
        showPassing(text);
    }
}

void StatusFields::showPassing(const QString& text)
{
    m_bar->showMessage(text, PassingTime);
}

QString StatusFields::stateText() const
{
    return m_state->text();
}

QString StatusFields::stageText() const
{
    return m_stage->text();
}

QString StatusFields::lineEndText() const
{
    return m_lineEnds->text();
}

QString StatusFields::encodingText() const
{
    return m_encoding->text();
}

QString StatusFields::placeText() const
{
    return m_place->text();
}

QString StatusFields::problemText() const
{
    return m_problems->text();
}

QToolButton* StatusFields::addButton(const char* name)
{
    auto* button = new QToolButton(m_bar);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

/// Watches the folder, which reports that a file was deleted.
void StatusFields::watchFolder()
{
    const QStringList old = m_watcher->directories();
    if (!old.isEmpty()) {
        m_watcher->removePaths(old);
    }
    if (m_document && !m_document->fileName().isEmpty()) {
        m_watcher->addPath(QFileInfo(m_document->fileName()).absolutePath());
    }
}

}  // namespace App
