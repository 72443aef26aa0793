#pragma once

#include "app/window/part.h"
#include "operations/fixes/fixes.h"

#include <QObject>

class QMenu;

namespace Zorv {
class CodeEditor;
}

namespace App {

class MessagePanel;
class ProblemWatch;
struct WindowServices;

/// Offers what can be done about a problem: by a key, in the context menu of a message, and in that
/// of a line with one.
class QuickFixes : public QObject, public Part
{
    Q_OBJECT

public:
    /// All of them outlive it.
    QuickFixes(const WindowServices& services, ProblemWatch* problems, MessagePanel* panel,
               Zorv::CodeEditor* editor);

    QVector<ActionRow> actions() override;

    /// What can be done at the selected message, or at the line of the cursor.
    QVector<Operations::Fix> fixesOfMessage() const;
    QVector<Operations::Fix> fixesOfLine() const;

    /// Does one of them, and shows what has come of it. The person is told what does not go.
    void apply(const Operations::Fix& fix);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void offer();
    bool isOfUse() const;
    void fill(QMenu* menu, const QVector<Operations::Fix>& fixes);
    void openMessageMenu(const QPoint& place);
    void openTextMenu(const QPoint& place);
    Operations::FixSource source() const;
    QVector<Operations::Fix> fixesOf(const Family::Problems& problems) const;
    QString textOf(const QString& path) const;
    Family::FamilyProject* openProject(const QString& mainFile) const;
    void applyToText(const Operations::Fix& fix);
    void makeFile(const Operations::Fix& fix);
    void applyToAssets(const Operations::Fix& fix);
    void tell(const QString& text) const;

    const WindowServices& m_services;
    ProblemWatch* m_problems;
    MessagePanel* m_panel;
    Zorv::CodeEditor* m_editor;
};

}  // namespace App
