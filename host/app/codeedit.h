#pragma once

#include <QPlainTextEdit>

namespace Family {
class FamilyDocument;
}

namespace App {

/// A place in a text: line and column, from 0, and the line at the top of the view.
struct TextPlace
{
    int line = 0;
    int column = 0;
    int topLine = 0;
};

/// The text of a document in the window: current line marked, problems as tool
/// tips. The document is not owned and must outlive the widget.
class CodeEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeEdit(Family::FamilyDocument* document, QWidget* parent = nullptr);

    Family::FamilyDocument* codeDocument() const { return m_document; }

    /// Takes font and colours of the settings again.
    void reconfig();

    /// Puts the cursor there and the line into the view. A place behind the end
    /// is the end.
    void goTo(int line, int column = 0, int length = 0);

    /// Where the person is; kept when the file is read again.
    TextPlace place() const;
    void setPlace(const TextPlace& place);

    /// The messages on the character at a place of the viewport, a line each.
    QString problemsAt(const QPoint& position) const;

protected:
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void applyFont();
    void markCurrentLine();
    void keepPlace(int from, int removed, int added);

    Family::FamilyDocument* m_document;
    TextPlace m_place;  ///< as it was before the edit that is going on
    int m_length = 0;   ///< of the text before that
    bool m_isRestoring = false;
};

}  // namespace App
