#pragma once

#include <QString>
#include <QVector>

namespace Zorv {

class CodeEditorPrivate;

/// Where the person is in a text, to go on there when its file has been read again: cursor,
/// view and folds.
class KeptPlace
{
public:
    /// Takes it from the editor as it is.
    explicit KeptPlace(const CodeEditorPrivate* editor);

    /// Goes there. A line that is no more is the nearest one; a fold comes back if its head
    /// says the same at the same distance from the start or from the end of the text.
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
    int m_topOffset;  ///< lines of the screen from that line to the top of the view
    int m_left;
    int m_lineCount;
};

}  // namespace Zorv
