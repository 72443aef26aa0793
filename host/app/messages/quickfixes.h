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

/// Offers fixes for a problem: by a shortcut, in the context menu of a message, and in the context
/// menu of a line with a problem.
class QuickFixes : public QObject, public Part
{
    Q_OBJECT

public:
    /// All of them outlive this object.
    QuickFixes(const WindowServices& services, ProblemWatch* problems, MessagePanel* panel,
               Zorv::CodeEditor* editor);

    QVector<ActionRow> actions() override;

    /// The fixes for the selected message, or for the cursor's line.
    QVector<Operations::Fix> fixesOfMessage() const;
    QVector<Operations::Fix> fixesOfLine() const;

    /// Applies a fix and shows the result. Shows a message on failure.
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
