#pragma once

#include <QString>
#include <QVector>

namespace Zorv {

class CodeEditorPrivate;

/// The user's position in a text (cursor, view and folds), to restore it after the file has been
/// read again.
class KeptPlace
{
public:
    /// Saves the current position of an editor.
    explicit KeptPlace(const CodeEditorPrivate* editor);

    /// Restores the position. A missing line is replaced by the nearest one. A fold is restored if
    /// a line with the same text is at the same distance from the start or the end of the text.
    void restore(CodeEditorPrivate* editor) const;

private:
    struct Fold
    {
        int line;
        QString head;
    };

    void restoreFolds(CodeEditorPrivate* editor) const;

    QVector<Fold> m_folds;
    int m_line;
    int m_column;
    int m_topLine;
    int m_topOffset;  ///< screen lines from that line to the top of the view
    int m_left;
    int m_lineCount;
};

}  // namespace Zorv
