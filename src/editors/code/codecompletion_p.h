#pragma once

#include <QMap>
#include <QObject>
#include <QString>

class QCompleter;
class QKeyEvent;
class QStringListModel;

namespace Zorv {

class CodeEditorPrivate;

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

    /// True if the key is the open popup's, and not the text's.
    bool takesKey(const QKeyEvent* event) const;

    /// The text has taken a key.
    void keyPressed(const QKeyEvent* event);

private:
    void insert(const QString& text);

    CodeEditorPrivate* m_editor;
    QCompleter* m_completer;
    QMap<QString, QStringListModel*> m_models;
    QString m_error;
};

}  // namespace Zorv
