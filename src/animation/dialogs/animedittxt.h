#pragma once

#include "zorv_export.h"

#include <QDialog>

namespace Zorv {
class CodeEditor;
class Interface;
}  // namespace Zorv

class QLabel;
class QPushButton;

/// The code of one animation, to be edited apart from the text and applied as a whole.
///
/// What is typed stays here until it is applied, or the person drops it, and belongs to the
/// animation that it was typed for: another one comes into the window only when nothing is left of
/// it. The dialog knows no document: whoever made it hears `applyRequested()`. It is not modal.
///
/// Of the settings it reads "code_line_numbers", "code_highlight_line", "line", "block_range",
/// "paren_range" and "paren"; "anim_editcode_geometry" is where it stands. Main thread only.
class ZORV_EXPORT AnimEditTxt : public QDialog
{
    Q_OBJECT

public:
    /// `host` outlives the dialog; null for none.
    explicit AnimEditTxt(Zorv::Interface* host, QWidget* parent = nullptr);
    ~AnimEditTxt() override;

    /// Shows the code of an animation, which `name` tells the person, and forgets what was typed:
    /// for a caller that has looked at `isModified()`.
    void setText(const QString& text, const QString& name = {});

    /// What stands there now, and what `setText()` has put there.
    QString text() const;
    QString firstText() const { return m_firstText; }

    /// True if the person has typed something that is not applied.
    bool isModified() const;

    /// Asks about what is not applied, and applies or drops it as the person says. False if they
    /// want to stay, or it could not be applied.
    bool mayDrop();

    /// Reads the settings again.
    void reconfig();

    /// What the button Close, that of the window, and Escape come to: as `mayDrop()`, then closes.
    void reject() override;

signals:
    /// The person wants this code to be that of the animation. Who has written it calls
    /// `setText()`.
    void applyRequested(const QString& text);

    /// It has come or gone.
    void visibilityChanged(bool isVisible);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void updateButtons();

    Zorv::Interface* m_host;
    Zorv::CodeEditor* m_code;
    QLabel* m_name;
    QPushButton* m_apply;
    QString m_firstText;
};
