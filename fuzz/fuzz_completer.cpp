#include "editors/code/codeeditor.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QApplication application(*argc, *argv);
    return 0;
}

/// Any bytes are read as a file of words; the same bytes give the same answer again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const QTemporaryDir folder;
    static Zorv::CodeEditor editor;
    QFile file(folder.filePath(QStringLiteral("completer.xml")));
    require(file.open(QIODevice::WriteOnly) &&
            file.write(reinterpret_cast<const char*>(bytes), qint64(size)) == qint64(size));
    file.close();
    require(editor.completerFromFile(file.fileName()));
    const QString error = editor.completerError();
    require(editor.completerFromFile(file.fileName()) && editor.completerError() == error);
    return 0;
}
