#pragma once

#include <QObject>

class QKeyEvent;

namespace Zorv {
class CodeEditor;
class CompletionModel;
}  // namespace Zorv

namespace App {

/// The editor's popup of words, opened at any place with what grammar and project have
/// for it. A word that is chosen takes the place of the whole word at the cursor, so that
/// its case is right, and there is nothing left of what stood there.
class WordPopup : public QObject
{
    Q_OBJECT

public:
    explicit WordPopup(Zorv::CodeEditor* editor);

    /// False if there is nothing to offer at the cursor.
    bool open();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The columns that a word replaces.
    struct Range
    {
        int start;
        int end;
    };

    Range rangeAtCursor() const;
    void insert(const QString& word);
    bool adds(const QString& word) const;
    bool endWord(QKeyEvent* event);

    Zorv::CodeEditor* m_editor;
    Zorv::CompletionModel* m_words;
};

}  // namespace App
