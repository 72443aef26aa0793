#pragma once

#include "zorv_export.h"

#include <QDialog>

namespace Zorv {
class CodeEditor;
class Interface;
}  // namespace Zorv

class QLabel;
class QPushButton;

/// Edits the code of one animation apart from the text, and applies it as a whole.
///
/// Typed text stays here until the user applies or drops it. It belongs to the animation for which
/// it was typed: the window takes another one only when nothing is pending. The dialog knows no
/// document: its creator handles `applyRequested()`. It is not modal.
///
/// Settings that it reads: "code_line_numbers", "code_highlight_line", "line", "block_range",
/// "paren_range" and "paren". It stores its position in "anim_editcode_geometry". Main thread only.
class ZORV_EXPORT AnimEditTxt : public QDialog
{
    Q_OBJECT

public:
    /// `host` must outlive the dialog; null for none.
    explicit AnimEditTxt(Zorv::Interface* host, QWidget* parent = nullptr);
    ~AnimEditTxt() override;

    /// Shows the code of an animation called `name` and discards what was typed. Check
    /// `isModified()` first.
    void setText(const QString& text, const QString& name = {});

    /// The current content, and the content set by `setText()`.
    QString text() const;
    QString firstText() const { return m_firstText; }

    /// True if the user has typed something that is not applied.
    bool isModified() const;

    /// Asks about unapplied text, and applies or drops it. False if the user cancels, or if the
    /// text could not be applied.
    bool mayDrop();

    /// Reads the settings again.
    void reconfig();

    /// Called by the Close button, the window's close button and Escape: closes if `mayDrop()`.
    void reject() override;

signals:
    /// The user wants to apply this code. Call `setText()` after writing it.
    void applyRequested(const QString& text);

    /// The dialog was shown or hidden.
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
