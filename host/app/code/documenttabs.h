#pragma once

#include "app/code/textplace.h"

#include <QObject>

class QTabBar;

namespace Family {
class FamilyDocument;
}

namespace Zorv {
class CodeEditor;
class CodeWorkspace;
}  // namespace Zorv

namespace App {

/// The texts that are open, a tab each in the tab bar of the code workspace. All are shown
/// in its one editor; each keeps its place, with the document itself. Closing a tab ends
/// the view only; who gets `closeRequested()` asks about unsaved work.
class DocumentTabs : public QObject
{
    Q_OBJECT

public:
    /// Lives as a child of the workspace. Who gets `currentDocumentChanged()` shows the text there.
    explicit DocumentTabs(Zorv::CodeWorkspace* workspace);
    ~DocumentTabs() override;

    /// Brings the tab of a document to the front, made if there is none.
    void showDocument(Family::FamilyDocument* document);

    /// Ends the view of a document; nothing without one.
    void closeDocument(const Family::FamilyDocument* document);

    /// Brings the titles in line with names that have changed.
    void updateTabs();

    int count() const;
    int currentIndex() const;
    void setCurrentIndex(int index);

    /// The tabs as they stand; they can be moved.
    Family::FamilyDocument* documentAt(int index) const;
    int indexOf(const Family::FamilyDocument* document) const;

    /// The document in front, or null.
    Family::FamilyDocument* currentDocument() const { return m_front; }

    /// The editor while it shows the document in front, else null.
    Zorv::CodeEditor* currentEdit() const;

    /// The place of an open document, or of one that was.
    TextPlace placeOf(const Family::FamilyDocument* document) const;
    void setPlace(Family::FamilyDocument* document, const TextPlace& place);

    QTabBar* bar() const { return m_bar; }

signals:
    void currentDocumentChanged(Family::FamilyDocument* document);
    void closeRequested(Family::FamilyDocument* document);

    /// A title has changed, and with it what can be done with the document.
    void stateChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTab(Family::FamilyDocument* document);
    void updateTab(const Family::FamilyDocument* document);
    void bringForward();
    bool isShown() const;
    void keepPlace();

    Zorv::CodeWorkspace* m_workspace;
    QTabBar* m_bar;
    Family::FamilyDocument* m_front = nullptr;
    int m_pressedTab = -1;  ///< by the middle button
};

}  // namespace App
