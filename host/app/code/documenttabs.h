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

/// The open texts, one tab each in the tab bar of the code workspace. One editor shows all of them;
/// each document stores its own position. Closing a tab only ends the view: the receiver of
/// `closeRequested()` asks about unsaved work.
class DocumentTabs : public QObject
{
    Q_OBJECT

public:
    /// A child of the workspace. The receiver of `currentDocumentChanged()` shows the text there.
    explicit DocumentTabs(Zorv::CodeWorkspace* workspace);
    ~DocumentTabs() override;

    /// Brings the tab of a document to the front, creating it if necessary.
    void showDocument(Family::FamilyDocument* document);

    /// Closes the tab of a document, if it has one.
    void closeDocument(const Family::FamilyDocument* document);

    /// Updates the titles after files were renamed.
    void updateTabs();

    int count() const;
    int currentIndex() const;
    void setCurrentIndex(int index);

    /// The document of a tab. The user can reorder tabs.
    Family::FamilyDocument* documentAt(int index) const;
    int indexOf(const Family::FamilyDocument* document) const;

    /// The document in front, or null.
    Family::FamilyDocument* currentDocument() const { return m_front; }

    /// The editor while it shows the current document, else null.
    Zorv::CodeEditor* currentEdit() const;

    /// The position in a document that is or was open.
    TextPlace placeOf(const Family::FamilyDocument* document) const;
    void setPlace(Family::FamilyDocument* document, const TextPlace& place);

    QTabBar* bar() const { return m_bar; }

signals:
    void currentDocumentChanged(Family::FamilyDocument* document);
    void closeRequested(Family::FamilyDocument* document);

    /// A title changed, and with it what can be done with the document.
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
    int m_pressedTab = -1;  ///< tab pressed with the middle button
};

}  // namespace App
