// A grammar for "name = value" lines in "[section]" groups, and a program that sets one value of a
// file and leaves every other byte of it as it is.

#include <zorv/zorv.h>

#include <QGuiApplication>
#include <QTextStream>

// A node stands on one line. The document makes it through the grammar and gives it up through
// release().
class Section : public Zorv::GroupCode
{
public:
    Section(Zorv::CodeNode* previous, const QString& name) : GroupCode(previous, 1), m_name(name)
    {
        insertRootChild(this);
    }

    QString name() const override { return m_name; }
    void setName(const QString& name) override { change('[' + name + ']'); }
    void release() override { delete this; }

private:
    QString m_name;
};

class Setting : public Zorv::ValueCode
{
public:
    Setting(Zorv::CodeNode* previous, const QString& name, const QString& value,
            const QString& comment)
        : ValueCode(previous, Text, value), m_name(name), m_comment(comment)
    {
    }

    QString name() const override { return m_name; }
    void setName(const QString& name) override { setLine(name, value().toString()); }
    QString unsignedText(unsigned value) const override { return QString::number(value); }
    void release() override { delete this; }

    // Writing a value is an edit of the text: the line is parsed again, and may have another node
    // afterwards.
    bool write(const QVariant& value) override
    {
        if (value.toString().contains('\n')) {
            return false;
        }
        setLine(m_name, value.toString());
        return true;
    }

private:
    void setLine(const QString& name, const QString& value)
    {
        change(name + " = " + value + m_comment);
    }

    QString m_name;
    QString m_comment;
};

// One call for each line: gives the node of the line, and reports its tokens.
class Grammar : public Zorv::CodeParser
{
public:
    Zorv::CodeNode* parse(const QString& text, Zorv::CodeNode* oldNode, Zorv::CodeNode* previous,
                          Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax) override
    {
        Q_UNUSED(oldNode)
        Q_UNUSED(root)
        using Syntax = Zorv::CodeParserSyntax;

        const int hash = text.indexOf('#');
        const int end = hash < 0 ? text.size() : hash;
        const QString code = text.left(end).trimmed();
        if (syntax && hash >= 0) {
            syntax->ok(Syntax::Comment, unsigned(hash), unsigned(text.size()));
        }
        if (code.isEmpty()) {
            return nullptr;
        }
        if (code.startsWith('[') && code.endsWith(']')) {
            if (syntax) {
                syntax->ok(Syntax::Header, 0, unsigned(end));
            }
            return new Section(previous, code.mid(1, code.size() - 2));
        }
        const int equals = code.indexOf('=');
        if (equals > 0) {
            if (syntax) {
                syntax->ok(Syntax::Keyword, 0, unsigned(text.indexOf('=')));
            }
            return new Setting(previous, code.left(equals).trimmed(),
                               code.mid(equals + 1).trimmed(),
                               hash < 0 ? QString() : "  " + text.mid(hash));
        }
        if (syntax) {
            syntax->error(Syntax::Invalid, "expected \"name = value\" or \"[section]\"", 0,
                          unsigned(end));
        }
        return nullptr;
    }
};

class SettingsDocument : public Zorv::CodeDocument
{
public:
    SettingsDocument() : CodeDocument(0)
    {
        // "parseCode" has edits of the tree parsed at once, "highlightCode" has tokens and
        // messages reported. A host gives both in its settings.
        setOption("parseCode", true, false, false);
        setOption("highlightCode", true, false, false);
        setParser(&m_grammar);
    }

    int projectKind() const override { return 0; }
    int blockFolding(const QString& line) const override { return line.startsWith('[') ? 5 : 0; }

    // The document is both the root of the tree and a file. The first call takes the tree down;
    // the last node that goes is the root, which calls again.
    void release() override
    {
        if (m_released) {
            delete this;
            return;
        }
        m_released = true;
        destroy();
    }

private:
    Grammar m_grammar;
    bool m_released = false;
};

static Zorv::ValueCode* findSetting(SettingsDocument& document, const QString& section,
                                    const QString& name)
{
    for (int i = 0; i < document.childCount(); ++i) {
        auto* group = dynamic_cast<Section*>(document.childAt(unsigned(i)));
        if (group && group->name() == section) {
            return group->valueByName(name);
        }
    }
    return nullptr;
}

static bool setValue(SettingsDocument& document, const QStringList& arguments, QTextStream& error)
{
    auto& archive = *Zorv::FileSystemArchive::instance();
    if (!document.fromFile(archive, arguments[1], false)) {
        error << document.errorString() << '\n';
        return false;
    }
    for (int i = 0; i < document.messages()->count(Zorv::Message::AllTypes); ++i) {
        const Zorv::Message message = document.messages()->at(i);
        error << arguments[1] << ':' << message.line + 1 << ": " << message.text << '\n';
    }
    Zorv::ValueCode* setting = findSetting(document, arguments[2], arguments[3]);
    if (!setting) {
        error << "There is no " << arguments[3] << " in [" << arguments[2] << "].\n";
        return false;
    }
    if (!setting->write(arguments[4])) {
        error << "A value stands on one line.\n";
        return false;
    }
    if (!document.toFile(archive, arguments[1], false)) {
        error << document.errorString() << '\n';
        return false;
    }
    return true;
}

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    QTextStream error(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5) {
        error << "usage: settings FILE SECTION NAME VALUE\n";
        return 2;
    }
    auto* document = new SettingsDocument;
    const bool done = setValue(*document, arguments, error);
    document->release();
    return done ? 0 : 1;
}
