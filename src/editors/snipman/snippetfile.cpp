#include "editors/snipman/snippetfile_p.h"

#include "core/dialogs/dialogs.h"
#include "core/filesystemarchive.h"
#include "core/safefile.h"
#include "editors/snipman/combosnipfield.h"
#include "editors/snipman/regularsnipfield.h"
#include "editors/snipman/snippetxml_p.h"

#include <QDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace Zorv {

namespace {

QStringList split(const QStringRef& list)
{
    return list.toString().split(QLatin1Char(','));
}

SnippetProblem problemAt(const QXmlStreamReader& reader, const QString& text)
{
    return {text, reader.lineNumber(), reader.columnNumber()};
}

class Reader
{
public:
    explicit Reader(const QString& xml) : m_reader(xml) { m_reader.setNamespaceProcessing(false); }

    SnippetFile read()
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement()) {
                readElement();
            }
        }
        if (m_reader.hasError()) {
            m_file.fault = problemAt(m_reader, m_reader.errorString());
        } else if (!m_hasCode) {
            addFlaw(SnippetFile::tr(
                "The snippet has no element \"code\". Add one with the text to insert."));
        }
        return std::move(m_file);
    }

private:
    void readElement()
    {
        if (m_reader.name() == QLatin1String("code")) {
            m_file.code = m_reader.readElementText();
            m_hasCode = true;
        } else if (m_reader.name() == QLatin1String("field")) {
            addField();
        }
    }

    void addField()
    {
        if (int(m_file.fields.size()) == SnippetFile::MaxFields) {
            m_reader.raiseError(SnippetFile::tr("A snippet has at most %1 fields. Remove some.")
                                    .arg(SnippetFile::MaxFields));
            return;
        }
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const QString name = attributes.value(QLatin1String("name")).toString();
        if (name.isEmpty()) {
            addFlaw(SnippetFile::tr("A field has no name. Write one, such as name=\"speed\"."));
        }
        m_file.fields.push_back(makeField(attributes, name));
    }

    std::unique_ptr<SnipField> makeField(const QXmlStreamAttributes& attributes,
                                         const QString& name)
    {
        const QString title = attributes.value(QLatin1String("title")).toString();
        const QString type = attributes.value(QLatin1String("type")).toString();
        if (type == QLatin1String("items")) {
            return makeList(attributes, name, title);
        }
        const bool isKnown = type == QLatin1String("string") || type == QLatin1String("int") ||
                             type == QLatin1String("float");
        if (!isKnown) {
            addFlaw(SnippetFile::tr(
                        "The field \"%1\" has the unknown type \"%2\". Write string, int, float or "
                        "items.")
                        .arg(name, type));
        }
        return std::make_unique<RegularSnipField>(
            name, title, isKnown ? type : QStringLiteral("string"),
            attributes.value(QLatin1String("value")).toString());
    }

    std::unique_ptr<SnipField> makeList(const QXmlStreamAttributes& attributes, const QString& name,
                                        const QString& title)
    {
        const QStringRef value = attributes.value(QLatin1String("value"));
        const QStringRef titles = attributes.value(QLatin1String("value_title"));
        const int commas = std::max(value.count(QLatin1Char(',')), titles.count(QLatin1Char(',')));
        if (commas >= SnippetFile::MaxItems) {
            m_reader.raiseError(SnippetFile::tr("A list has at most %1 items. Remove some.")
                                    .arg(SnippetFile::MaxItems));
        }
        // A missing list equals the other one.
        return std::make_unique<ComboSnipField>(name, title,
                                                split(value.isEmpty() ? titles : value),
                                                split(titles.isEmpty() ? value : titles));
    }

    void addFlaw(const QString& text)
    {
        if (!m_file.flaw.isThere()) {
            m_file.flaw = problemAt(m_reader, text);
        }
    }

    QXmlStreamReader m_reader;
    SnippetFile m_file;
    bool m_hasCode = false;
};

QString withoutTabs(const QString& line, int most)
{
    int tabs = 0;
    while (tabs < most && tabs < line.size() && line[tabs] == QLatin1Char('\t')) {
        ++tabs;
    }
    return line.mid(tabs);
}

QStringList linesWithoutTabs(const QString& code, int most)
{
    QStringList lines = code.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        line = withoutTabs(line, most);
    }
    return lines;
}

}  // namespace

QString SnippetProblem::message() const
{
    return SnippetFile::tr("%1\nLine %2, column %3.")
        .arg(text, QString::number(line), QString::number(column));
}

SnippetFile SnippetFile::read(const QString& xml)
{
    return Reader(xml).read();
}

QString SnippetFile::plainCode() const
{
    return linesWithoutTabs(code, code.size()).join(QLatin1Char('\n'));
}

QString SnippetFile::editedCode() const
{
    QStringList lines = linesWithoutTabs(code, 2);
    if (lines.size() > 1 && lines.first().trimmed().isEmpty()) {
        lines.removeFirst();
    }
    if (lines.size() > 1 && lines.last().trimmed().isEmpty()) {
        lines.removeLast();
    }
    return lines.join(QLatin1Char('\n'));
}

QString SnippetFile::fieldLine(const SnipField& field)
{
    return QLatin1String("\t<field name=\"") + xmlAttribute(field.name) +
           QLatin1String("\" title=\"") + xmlAttribute(field.title) + QLatin1String("\" type=\"") +
           xmlAttribute(field.type()) + QLatin1String("\" ") + field.attr() +
           QLatin1String("/>\r\n");
}

QString SnippetFile::write(const std::vector<const SnipField*>& fields, const QString& code)
{
    QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                  "<snippet>\r\n\r\n");
    for (const SnipField* field : fields) {
        text += fieldLine(*field);
    }
    text += QLatin1String("\r\n\t<code>\r\n");
    const QStringList lines = code.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        text += QLatin1String("\t\t") + xmlText(line) + QLatin1String("\r\n");
    }
    return text + QLatin1String("\t</code>\r\n\r\n</snippet>");
}

bool readSnippetText(const QString& fileName, QString* text, QString* error)
{
    Archive& disk = *FileSystemArchive::instance();
    QIODevice* device = disk.openFile(fileName, QIODevice::ReadOnly, error);
    if (!device) {
        if (error->isEmpty()) {
            *error = SnippetFile::tr("There is no such file.");
        }
        return false;
    }
    const QByteArray bytes = device->read(SnippetFile::MaxBytes + 1);
    disk.closeFile(device);
    if (bytes.size() > SnippetFile::MaxBytes) {
        *error = SnippetFile::tr("It is too large for a snippet: %1 bytes are the most.")
                     .arg(SnippetFile::MaxBytes);
        return false;
    }
    *text = QString::fromUtf8(bytes.constData(), int(qstrnlen(bytes.constData(), bytes.size())));
    return true;
}

bool writeSnippetText(const QString& fileName, const QString& text)
{
    QString error;
    if (SafeFile::save(fileName, text.toUtf8(), &error)) {
        return true;
    }
    Dialogs::instance()->error(
        SnippetFile::tr("Save"),
        SnippetFile::tr("Cannot save %1: %2").arg(QDir::toNativeSeparators(fileName), error));
    return false;
}

}  // namespace Zorv
