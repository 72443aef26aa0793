#pragma once

#include <QMap>
#include <QObject>
#include <QString>

class QCompleter;
class QKeyEvent;
class QStringListModel;

namespace Zorv {

class CodeEditorPrivate;
class CompletionDelegate;

/// The popup of words: when it opens, and what is put in.
class CodeCompletion : public QObject
{
    Q_OBJECT

public:
    explicit CodeCompletion(CodeEditorPrivate* editor);
    ~CodeCompletion() override;

    bool readFile(const QString& fileName);
    QString error() const { return m_error; }
    QCompleter* completer() const { return m_completer; }
    void show(QStringListModel* words);
    void hide();

    /// True if the key is the open popup's, and not the text's.
    bool takesKey(const QKeyEvent* event) const;

    /// The text has taken a key.
    void keyPressed(const QKeyEvent* event);

protected:
    /// The popup hears of another language by itself.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isOpen() const;
    QString wordAtCursor() const;
    QString lineEnd() const;
    QStringListModel* modelForLine() const;
    void useModel(QStringListModel* words);
    void open(const QString& prefix);
    void insert(const QString& text);

    CodeEditorPrivate* m_editor;
    QCompleter* m_completer;
    CompletionDelegate* m_delegate;
    QMap<QString, QStringListModel*> m_models;  // by trigger
    QString m_error;
    int m_longest = 0;  // trigger, in characters
};

}  // namespace Zorv
