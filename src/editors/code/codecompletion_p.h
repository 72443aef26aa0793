#pragma once

#include "editors/code/codeeditor.h"

#include <QMap>
#include <QObject>
#include <QString>

class QKeyEvent;

namespace Zorv {

class CodeEditorPrivate;
class CompletionDelegate;

/// The completion popup: when it opens, and what it inserts.
class CodeCompletion : public QObject
{
    Q_OBJECT

public:
    explicit CodeCompletion(CodeEditorPrivate* editor);
    ~CodeCompletion() override;

    bool readFile(const QString& fileName);
    QString error() const { return m_error; }
    QCompleter* completer() const { return m_completer; }
    void setFinder(const CodeEditor::WordFinder& finder) { m_finder = finder; }
    void show(QStringListModel* words);
    void hide();

    /// True if the key belongs to the open popup and not to the text.
    bool takesKey(const QKeyEvent* event) const;

    /// Call after the text has handled a key.
    void keyPressed(const QKeyEvent* event);

protected:
    /// Watches the popup for a change of language, and for keys that end a word which is being
    /// replaced.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOpen() const;
    QString wordAtCursor() const;
    QString lineEnd() const;
    QStringListModel* modelForLine() const;
    void useModel(QStringListModel* words);
    void showFrom(int start);
    void open(const QString& prefix);
    void insert(const QString& text);
    CodeEditor::WordRange range() const;
    void replace(const QString& word);
    bool endWord(QKeyEvent* event);

    CodeEditorPrivate* m_editor;
    QCompleter* m_completer;
    CompletionDelegate* m_delegate;
    CodeEditor::WordFinder m_finder;
    QMap<QString, QStringListModel*> m_models;  // key: trigger
    QString m_error;
    int m_longest = 0;  // length of the longest trigger
};

}  // namespace Zorv
