#pragma once

#include <QTabWidget>

namespace Family {
class FamilyDocument;
}

namespace App {

class CodeEdit;

/// The texts that are shown, a tab each. Closing a tab ends the view only; who
/// gets `closeRequested()` asks about unsaved work.
class DocumentTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit DocumentTabs(QWidget* parent = nullptr);
    ~DocumentTabs() override;

    /// Brings the tab of a document to the front, made if there is none.
    CodeEdit* showDocument(Family::FamilyDocument* document);

    /// Ends the view of a document; nothing without one.
    void closeDocument(const Family::FamilyDocument* document);

    /// Brings the titles in line with names that have changed.
    void updateTabs();

    CodeEdit* currentEdit() const;

    /// The document in front, or null.
    Family::FamilyDocument* currentDocument() const;
    CodeEdit* editOf(const Family::FamilyDocument* document) const;
    CodeEdit* editAt(int index) const;

signals:
    void currentDocumentChanged(Family::FamilyDocument* document);
    void closeRequested(Family::FamilyDocument* document);

    /// The cursor of the text in front, or what can be done with it.
    void cursorMoved();
    void stateChanged();

private:
    CodeEdit* addEdit(Family::FamilyDocument* document);
    void updateTab(const CodeEdit* edit);
    void announceCurrent();
};

}  // namespace App
