#include "family/completer/completerfile.h"

#include "family/grammar/grammar.h"

#include <QMap>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Family {

namespace {

const QString rootName = QStringLiteral("completer");
const QString originName = QStringLiteral("origin");
const QString ownOrigin = QStringLiteral("zorv");

/// Words with their descriptions, sorted.
using Words = QMap<QString, QString>;

/// A list opens after its trigger and after the first letter of one of its words.
QString triggersFor(const QString& trigger, const Words& words)
{
    QStringList triggers{trigger};
    for (auto word = words.begin(); word != words.end(); ++word) {
        triggers.append(trigger + word.key().at(0).toLower());
    }
    triggers.removeDuplicates();
    return triggers.join(QLatin1Char(' '));
}

void writeWords(QXmlStreamWriter* xml, const QString& trigger, const Words& words)
{
    xml->writeStartElement(QStringLiteral("words"));
    xml->writeAttribute(QStringLiteral("trigger"), triggersFor(trigger, words));
    for (auto word = words.begin(); word != words.end(); ++word) {
        xml->writeEmptyElement(QStringLiteral("word"));
        xml->writeAttribute(QStringLiteral("text"), word.key());
        xml->writeAttribute(QStringLiteral("description"), word.value());
    }
    xml->writeEndElement();
}

Words groupWords(bool sub)
{
    Words words;
    for (const GroupInfo* group : Grammar::groups()) {
        if (group->isSubGroup() == sub && !group->isDeprecated()) {
            words.insert(group->name, group->meaning());
        }
    }
    return words;
}

/// The choices of all keys. A trigger does not know its group, so keys with the same name in
/// different groups share one list.
QMap<QString, Words> choiceWords()
{
    QMap<QString, Words> lists;
    for (const GroupInfo* group : Grammar::groups()) {
        for (const KeyInfo& key : *group) {
            const QStringList choices = key.choiceList();
            for (const QString& choice : choices) {
                lists[key.name].insert(choice, key.meaning());
            }
        }
    }
    return lists;
}

}  // namespace

QByteArray completerXml()
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(rootName);
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1"));
    xml.writeAttribute(originName, ownOrigin);
    writeWords(&xml, QStringLiteral("["), groupWords(false));
    writeWords(&xml, QStringLiteral("[."), groupWords(true));
    const QMap<QString, Words> lists = choiceWords();
    for (auto list = lists.begin(); list != lists.end(); ++list) {
        writeWords(&xml, list.key() + QLatin1Char('='), list.value());
    }
    xml.writeEndDocument();
    return bytes;
}

QString completerFileName()
{
    return QStringLiteral("completer.xml");
}

bool isOwnCompleter(const QByteArray& content)
{
    QXmlStreamReader xml(content);
    return xml.readNextStartElement() && xml.name() == rootName &&
           xml.attributes().value(originName) == ownOrigin;
}

}  // namespace Family
