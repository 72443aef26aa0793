#include "editors/code/codecompletion_p.h"

#include "editors/code/codeeditor_p.h"

#include <QCompleter>
#include <QFile>

namespace Zorv {

CodeCompletion::CodeCompletion(CodeEditorPrivate* editor)
    : QObject(editor), m_editor(editor), m_completer(new QCompleter(this))
{
    m_completer->setWidget(editor->q);
    connect(m_completer, QOverload<const QString&>::of(&QCompleter::activated), this,
            &CodeCompletion::insert);
}

CodeCompletion::~CodeCompletion() = default;

bool CodeCompletion::readFile(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly);
}

void CodeCompletion::show(QStringListModel*) {}

bool CodeCompletion::takesKey(const QKeyEvent*) const
{
    return false;
}

void CodeCompletion::keyPressed(const QKeyEvent*) {}

void CodeCompletion::insert(const QString&) {}

}  // namespace Zorv
