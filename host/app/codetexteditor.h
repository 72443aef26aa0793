#pragma once

#include "editors/framework/fileeditor.h"

namespace Family {
class FamilyDocument;
}

namespace App {

class CodeEdit;
class MainWindow;

/// The texts of the window as the library sees them: its editor "code", which
/// works on the text in front.
class CodeTextEditor : public Zorv::FileEditor
{
    Q_OBJECT

public:
    /// Lives as a child of the window.
    explicit CodeTextEditor(MainWindow* window);

    /// Brings the text to the front.
    QAction* action() const override { return m_action; }

    QString name() const override;

    /// 1: a new code file has no name.
    int canEditFileType() const override;
    QStringList areas() const override;
    void retranslate() override;
    void navigateTo(const QString& name, unsigned line, unsigned column, unsigned length) override;
    void undo() override;
    void redo() override;
    void find(const QString& text, unsigned flags) override;
    void replace(const QString& text, const QString& with, unsigned flags, bool all) override;
    void selectAll() override;
    Zorv::ProjectFile* file() const override;

    /// The kind of the text in front, by its suffix.
    QString fileFilter() const override;
    void cut() override;
    void copy() override;
    void paste() override;

private:
    void followFront(const Family::FamilyDocument* document);
    CodeEdit* edit() const;
    void replaceAll(const QString& text, const QString& with, unsigned flags);

    MainWindow* m_window;
    QAction* m_action;
};

}  // namespace App
