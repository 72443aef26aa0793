#include "editors/code/completerfile_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace Zorv {

namespace {

QString attribute(const QXmlStreamReader* xml, const char* name)
{
    return xml->attributes().value(QLatin1String(name)).toString().trimmed();
}

/// Descriptions are shown on one line: join the lines and limit the length.
QString oneLine(const QString& text)
{
    constexpr int mostShown = 200;
    const QString line = text.simplified();
    return line.size() > mostShown ? line.left(mostShown - 1) + QStringLiteral("…") : line;
}

}  // namespace

bool CompleterFile::read(const QString& fileName)
{
    m_fileName = QDir::toNativeSeparators(fileName);
    const QFileInfo info(fileName);
    if (!info.exists()) {
        return false;
    }
    QFile file(fileName);
    // Opening a pipe would block forever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        m_error = tr("The words to complete cannot be read from %1: %2")
                      .arg(m_fileName, info.isFile() ? file.errorString() : tr("it is no file"));
        return false;
    }
    const QByteArray bytes = file.read(MostBytes + 1);
    if (bytes.size() > MostBytes) {
        m_error = tr("%1 is too long for a file of words to complete: more than %2 MiB.")
                      .arg(m_fileName, QString::number(MostBytes / (1024 * 1024)));
        return true;
    }
    parse(bytes);
    return true;
}

void CompleterFile::parse(const QByteArray& bytes)
{
    QXmlStreamReader xml(bytes);
    readRoot(&xml);
    while (!xml.atEnd()) {
        xml.readNext();
    }
    if (xml.hasError()) {
        m_error = tr("%1, line %2, column %3: %4 The words to complete stay as they were.")
                      .arg(m_fileName, QString::number(xml.lineNumber()),
                           QString::number(xml.columnNumber() + 1), xml.errorString());
    }
}

void CompleterFile::readRoot(QXmlStreamReader* xml)
{
    // Entities of a document type could expand a short file into a huge one.
    while (!xml->atEnd() && !xml->isStartElement()) {
        if (xml->readNext() == QXmlStreamReader::DTD) {
            xml->raiseError(tr("A document type is not allowed here."));
        }
    }
    if (!xml->isStartElement()) {
        return;
    }
    if (xml->name() != QLatin1String("completer")) {
        xml->raiseError(tr("Expected the element 'completer'."));
    } else if (attribute(xml, "version") != QLatin1String("1")) {
        xml->raiseError(tr("Expected version=\"1\"."));
    }
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("words")) {
            readWords(xml);
        } else {
            xml->skipCurrentElement();
        }
    }
}

void CompleterFile::readWords(QXmlStreamReader* xml)
{
    const QStringList triggers = attribute(xml, "trigger").simplified().split(QLatin1Char(' '));
    if (triggers.first().isEmpty()) {
        xml->raiseError(tr("Expected an attribute 'trigger' with a text."));
    }
    while (xml->readNextStartElement()) {
        if (xml->name() != QLatin1String("word")) {
            xml->skipCurrentElement();
            continue;
        }
        const CompletionWord word{attribute(xml, "text"), oneLine(attribute(xml, "description"))};
        m_count += triggers.size();
        if (word.text.isEmpty() || word.text.contains(QLatin1Char('\n'))) {
            xml->raiseError(tr("Expected an attribute 'text' with a word."));
        } else if (m_count > MostWords) {
            xml->raiseError(tr("These are more than %1 words.").arg(MostWords));
        } else {
            for (const QString& trigger : triggers) {
                m_words[trigger].append(word);
            }
        }
        xml->skipCurrentElement();
    }
}

}  // namespace Zorv
