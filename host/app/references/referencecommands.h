#pragma once

#include "app/references/renameact.h"
#include "app/window/part.h"
#include "operations/references/referenceindex.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace Zorv {
class CodeEditor;
}

namespace App {

class PlaceMarks;
class ReferencePanel;
struct WindowServices;

/// References of the name at the cursor, listed and marked in the text, and renaming it in the
/// whole game.
class ReferenceCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// The editor shows the texts and outlives this object.
    ReferenceCommands(const WindowServices& services, Zorv::CodeEditor* editor);
    ~ReferenceCommands() override;

    ReferencePanel* panel() const { return m_panel; }

    void findReferences();
    void rename();
    void undoRename();

    /// The marked places.
    PlaceMarks* marks() const { return m_marks; }

    QVector<ActionRow> actions() override;
    void showGame(Family::FamilyParentProject* game) override;
    void showDocument(Family::FamilyDocument* document) override;
    void forgetProject(Family::FamilyProject* project) override;
    QVector<PanelPlace> places() override;

private:
    using IndexPtr = std::shared_ptr<Operations::ReferenceIndex>;

    bool hasText() const;
    bool canUndoRename() const;
    Operations::Subject subjectAtCursor() const;
    IndexPtr bringUpToDate();
    void handOverTexts();
    void showUses(const Operations::Subject& subject);
    void mark();
    void open(const Operations::NameUse& use);
    void finish(RenameAct* act, const QString& title);

    const WindowServices& m_services;
    Zorv::CodeEditor* m_editor;
    QPointer<ReferencePanel> m_panel;
    PlaceMarks* m_marks;
    IndexPtr m_index;       // null while no game is open or nothing was searched
    QSet<QString> m_texts;  // paths of the texts in the index
    RenameAct m_last;
};

}  // namespace App
