#include "core/dialogs/dialogs.h"
#include "editors/snipman/snipdlg.h"
#include "editors/snipman/snippetmanager.h"
#include "operations/hostinterface.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>

#include <cstdint>
#include <cstdlib>

using Zorv::SnippetManager;

namespace {

/// Nobody is there to be told.
class SilentDialogs : public Zorv::Dialogs
{
public:
    void error(const QString&, const QString&) override {}
};

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

QByteArray read(const QString& name)
{
    QFile file(name);
    require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void write(const QString& name, const QByteArray& bytes)
{
    QFile file(name);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

bool isXml(const QByteArray& bytes)
{
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return !reader.hasError();
}

/// Asks for the values, takes those that are there, and inserts.
void use(const Zorv::Interface& host, const QString& folder)
{
    QTimer accept;
    QObject::connect(&accept, &QTimer::timeout, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->accept();
        }
    });
    accept.start(0);
    SnippetManager::instance()->update(folder);
    SnippetManager::instance()->snippet(host, 0);
}

/// What the dialog shows of a file is whole after it was saved.
void edit(const Zorv::Interface& host, const QString& file)
{
    const SnipDlg dialog(&host, file);
    write(file, dialog.toString().toUtf8());
    const SnipDlg again(&host, file);
    require(again.toString().toUtf8() == read(file));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Qt has a word for each dialog that it shows off screen.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static QApplication application(*argc, *argv);
    return 0;
}

/// Any bytes are used, edited and written for translators as a snippet.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const QTemporaryDir folder;
    static Operations::HostInterface host;
    static SilentDialogs dialogs;
    Zorv::Dialogs::setInstance(&dialogs);
    const QString snippets = folder.filePath(QStringLiteral("snippets"));
    require(QDir().mkpath(snippets));
    const QString file = snippets + QLatin1String("/it.xml");
    write(file, QByteArray(reinterpret_cast<const char*>(bytes), int(size)));
    use(host, snippets);

    const QString source = folder.filePath(QStringLiteral("it.ts"));
    if (SnippetManager::genTS(host, source, QString::fromUtf8(read(file)))) {
        require(isXml(read(source)));
    }
    if (isXml(read(file))) {
        edit(host, file);
    }
    return 0;
}
