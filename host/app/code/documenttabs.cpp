#include "app/code/documenttabs.h"

#include "app/session/gamesession.h"
#include "family/familydocument.h"

#include <zorv/code/codedoc/editordata.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>

#include <QDir>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QTextBlock>
#include <algorithm>

// All texts share one editor, so cursor, selection and scroll position are saved with the document
// when it leaves the editor, and restored when it returns. While another editor shows something
// else there, `isShown()` is false and the saved position counts.

namespace App {

using Family::FamilyDocument;
using Zorv::CodeEditor;

namespace {

const QString PlaceName = QStringLiteral("code");

class KeptPlace : public Zorv::EditorData
{
public:
    explicit KeptPlace(const TextPlace& kept) : place(kept) {}

    TextPlace place;
};

TextPlace placeIn(const CodeEditor* editor)
{
    const QTextCursor cursor = editor->textCursor();
    const QTextBlock anchor = editor->document()->findBlock(cursor.anchor());
    return {cursor.blockNumber(), cursor.positionInBlock(), anchor.blockNumber(),
            cursor.anchor() - anchor.position(), editor->verticalScrollBar()->value()};
}

/// The nearest existing position.
int positionOf(const QTextDocument* document, int line, int column)
{
    const QTextBlock block = document->findBlockByNumber(line);
    return block.isValid() ? block.position() + qBound(0, column, block.length() - 1)
                           : document->characterCount() - 1;
}

TextPlace keptPlace(const FamilyDocument* document)
{
    const auto* kept =
        document ? static_cast<const KeptPlace*>(document->editorData(PlaceName)) : nullptr;
    return kept ? kept->place : TextPlace();
}

void keep(FamilyDocument* document, const TextPlace& place)
{
    document->setEditorData(PlaceName, std::make_unique<KeptPlace>(place));
}

void restorePlace(CodeEditor* editor, const TextPlace& place)
{
    QTextCursor cursor(editor->document());
    cursor.setPosition(positionOf(editor->document(), place.anchorLine, place.anchorColumn));
    cursor.setPosition(positionOf(editor->document(), place.line, place.column),
                       QTextCursor::KeepAnchor);
    editor->setTextCursor(cursor);
    editor->verticalScrollBar()->setValue(place.scroll);
}

}  // namespace

DocumentTabs::DocumentTabs(Zorv::CodeWorkspace* workspace)
    : QObject(workspace), m_workspace(workspace), m_bar(workspace->tabBar())
{
    m_bar->setDocumentMode(true);
    m_bar->setUsesScrollButtons(true);
    m_bar->setObjectName(QStringLiteral("open_texts"));
    m_bar->installEventFilter(this);
    connect(m_bar, &QTabBar::currentChanged, this, &DocumentTabs::bringForward);
    connect(workspace, &Zorv::CodeWorkspace::documentLeaves, this, &DocumentTabs::keepPlace);
    connect(workspace, &Zorv::CodeWorkspace::documentShown, this, [this] {
        if (isShown()) {
            restorePlace(m_workspace->editor(), keptPlace(m_front));
        }
    });
    connect(m_bar, &QTabBar::tabCloseRequested, this,
            [this](int index) { emit closeRequested(documentAt(index)); });
}

DocumentTabs::~DocumentTabs() = default;

void DocumentTabs::showDocument(FamilyDocument* document)
{
    if (indexOf(document) < 0) {
        addTab(document);
    }
    m_bar->setCurrentIndex(indexOf(document));
    bringForward();
}

void DocumentTabs::addTab(FamilyDocument* document)
{
    connect(document, &QTextDocument::modificationChanged, this,
            [this, document] { updateTab(document); });
    connect(document, &Zorv::CodeDocument::closing, this,
            [this, document] { closeDocument(document); });
    // The bar reports its first tab before the tab data is set.
    m_bar->blockSignals(true);
    const int index = m_bar->addTab(QString());
    m_bar->setTabData(index, QVariant::fromValue(static_cast<QObject*>(document)));
    m_bar->blockSignals(false);
    updateTab(document);
}

void DocumentTabs::closeDocument(const FamilyDocument* document)
{
    const int index = indexOf(document);
    if (index < 0) {
        return;
    }
    document->disconnect(this);
    if (document == m_front) {
        keepPlace();
    }
    m_bar->removeTab(index);
    bringForward();
}

void DocumentTabs::bringForward()
{
    FamilyDocument* document = documentAt(m_bar->currentIndex());
    if (document == m_front) {
        return;
    }
    keepPlace();
    m_front = document;
    emit currentDocumentChanged(document);
}

/// False while another editor is in front.
bool DocumentTabs::isShown() const
{
    return m_front && m_workspace->editor()->codeDocument() == m_front;
}

void DocumentTabs::keepPlace()
{
    if (isShown()) {
        const CodeEditor* editor = m_workspace->editor();
        keep(m_front, placeIn(editor));
    }
}

TextPlace DocumentTabs::placeOf(const FamilyDocument* document) const
{
    return document == m_front && isShown() ? placeIn(m_workspace->editor()) : keptPlace(document);
}

void DocumentTabs::setPlace(FamilyDocument* document, const TextPlace& place)
{
    if (document == m_front && isShown()) {
        restorePlace(m_workspace->editor(), place);
    } else {
        keep(document, place);
    }
}

CodeEditor* DocumentTabs::currentEdit() const
{
    return isShown() ? m_workspace->editor() : nullptr;
}

int DocumentTabs::count() const
{
    return m_bar->count();
}

int DocumentTabs::currentIndex() const
{
    return m_bar->currentIndex();
}

void DocumentTabs::setCurrentIndex(int index)
{
    m_bar->setCurrentIndex(index);
}

FamilyDocument* DocumentTabs::documentAt(int index) const
{
    return static_cast<FamilyDocument*>(m_bar->tabData(index).value<QObject*>());
}

int DocumentTabs::indexOf(const FamilyDocument* document) const
{
    int index = count() - 1;
    while (index >= 0 && documentAt(index) != document) {
        --index;
    }
    return index;
}

void DocumentTabs::updateTabs()
{
    for (int i = 0; i < count(); ++i) {
        updateTab(documentAt(i));
    }
}

void DocumentTabs::updateTab(const FamilyDocument* document)
{
    const int index = indexOf(document);
    QString title = document->title().isEmpty() ? tr("new file") : document->title();
    title.replace(QLatin1Char('&'), QLatin1String("&&"));
    if (document->isModified()) {
        title += QLatin1Char('*');
    }
    m_bar->setTabText(index, isGone(document) ? tr("%1 (missing)").arg(title) : title);
    m_bar->setTabToolTip(index, QDir::toNativeSeparators(document->fileName()));
    emit stateChanged();
}

/// The middle button closes the tab on which it was pressed and released.
bool DocumentTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::MiddleButton) {
            const int tab = m_bar->tabAt(mouse->pos());
            if (event->type() == QEvent::MouseButtonPress) {
                m_pressedTab = tab;
            } else if (tab >= 0 && tab == m_pressedTab) {
                emit closeRequested(documentAt(tab));
            }
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace App
