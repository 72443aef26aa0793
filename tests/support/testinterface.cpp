#include "support/testinterface.h"

#include "support/testcontrols.h"

#include "text/translator.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

namespace {

class TestProgress : public Zorv::ProgressReporter
{
public:
    TestProgress(TestInterface* host, int index) : m_host(host), m_index(index) {}

    void update(int value, int maximum) override
    {
        m_host->progresses[m_index].updates.append({value, maximum});
        m_value = value;
    }

    bool isCanceled() const override
    {
        return m_host->cancelAfter >= 0 && m_value >= m_host->cancelAfter;
    }

    void finish() override
    {
        m_host->progresses[m_index].finished = true;
        delete this;
    }

private:
    TestInterface* m_host;
    int m_index;
    int m_value = 0;
};

}  // namespace

TestInterface::TestInterface()
{
    setGlobalInterface(this);
}

TestInterface::~TestInterface()
{
    if (instance() == this) {
        setGlobalInterface(nullptr);
    }
}

QString TestInterface::status(int field) const
{
    for (int i = statuses.size() - 1; i >= 0; --i) {
        if (statuses[i].first == field) {
            return statuses[i].second;
        }
    }
    return {};
}

QString TestInterface::text(unsigned id) const
{
    return texts.value(id);
}

QWidget* TestInterface::mainWindow() const
{
    return window;
}

Zorv::ProgressReporter* TestInterface::progress(const QString& title, int)
{
    progresses.append(Progress{title, {}, false});
    return new TestProgress(this, progresses.size() - 1);
}

Zorv::EngineModel* TestInterface::engineModel() const
{
    return engines;
}

Zorv::Editor* TestInterface::currentEditor() const
{
    return editor;
}

Zorv::Editor* TestInterface::editorByName(const char* name) const
{
    return editors.value(name);
}

Zorv::Editor* TestInterface::fileEditor(Zorv::ProjectFile* file, Zorv::FileID) const
{
    return fileEditors.value(file);
}

unsigned TestInterface::projectCount() const
{
    return unsigned(projects.size());
}

Zorv::Project* TestInterface::projectAt(unsigned index) const
{
    return projects.value(int(index));
}

Zorv::Project* TestInterface::currentProject() const
{
    return frontProject;
}

int TestInterface::pixels(int size) const
{
    return size;
}

QColor TestInterface::colorOption(const QString& key) const
{
    return options.value(key).value<QColor>();
}

void TestInterface::selectPaletteFiles(QStringList& files, QStringList& names, bool*)
{
    record("selectPaletteFiles");
    files = paletteFiles;
    names = paletteNames;
}

QVariant TestInterface::option(const QString& key) const
{
    return options.value(key);
}

void TestInterface::setOption(const QString& key, const QVariant& value)
{
    record("setOption", {key, value.toString()});
    if (value.isNull()) {
        options.remove(key);
    } else {
        options[key] = value;
    }
}

void TestInterface::showStatus(int field, const QString& text)
{
    statuses.append({field, text});
}

QObject* TestInterface::addControl(const QString& name, const Zorv::Control& control)
{
    record("addControl", {name});
    if (name.isEmpty()) {
        return nullptr;
    }
    if (!m_controls) {
        m_controls = std::make_unique<TestControls>();
    }
    QWidget* widget = m_controls->add(name, control);
    controls[name] = widget;
    return widget;
}

QWidget* TestInterface::controlsWindow() const
{
    return m_controls.get();
}

QMenu* TestInterface::menu(const char* name) const
{
    return menus.value(name);
}

QAction* TestInterface::createAction(const char* const* areas, const QString& name,
                                     Zorv::Translator* translator, unsigned textId,
                                     const char* shortcut, QObject* receiver, const char* slot,
                                     const char* enableSignal, const char* checkSignal)
{
    record("createAction", {name});
    if (name.isEmpty()) {
        return nullptr;
    }
    QAction* action = makeAction(name, translator, textId);
    for (const char* const* area = areas; area && *area; ++area) {
        areasOf[name].append(QString::fromLatin1(*area));
    }
    if (shortcut) {
        action->setShortcut(QKeySequence(QString::fromLatin1(shortcut)));
    }
    if (receiver && slot) {
        QObject::connect(action, SIGNAL(triggered(bool)), receiver, slot);
    }
    if (receiver && enableSignal) {
        QObject::connect(receiver, enableSignal, action, SLOT(setEnabled(bool)));
    }
    if (receiver && checkSignal) {
        action->setCheckable(true);
        QObject::connect(receiver, checkSignal, action, SLOT(setChecked(bool)));
    }
    return action;
}

QAction* TestInterface::createEditorAction(const QString& name, Zorv::Translator* translator,
                                           unsigned textId)
{
    record("createEditorAction", {name});
    return makeAction(name, translator, textId);
}

QAction* TestInterface::makeAction(const QString& name, Zorv::Translator* translator,
                                   unsigned textId)
{
    auto* action = new QAction(translator ? translator->trText(textId) : name, &m_owner);
    action->setObjectName(name);
    actions[name] = action;
    return action;
}

void TestInterface::setMenuEnabled(const char* menu, const char* group, bool enabled)
{
    record("setMenuEnabled", {QString::fromLatin1(menu), QString::fromLatin1(group),
                              enabled ? QStringLiteral("true") : QStringLiteral("false")});
}

Zorv::ExtraEditor* TestInterface::extraEditor(unsigned index) const
{
    return extraEditors.value(index);
}

void TestInterface::refreshProjects()
{
    record("refreshProjects");
    ++refreshCount;
}

void TestInterface::activateEditor(Zorv::Editor* newEditor)
{
    record("activateEditor");
    editor = newEditor;
}

void TestInterface::showWorkspace(Zorv::Workspace* newWorkspace)
{
    record("showWorkspace");
    workspace = newWorkspace;
}

void TestInterface::showExtraEditor(Zorv::ExtraEditor* extraEditor)
{
    record("showExtraEditor");
    panel = extraEditor;
}

void TestInterface::record(const char* call, const QStringList& arguments)
{
    calls.append(QString::fromLatin1(call) + QLatin1Char('(') +
                 arguments.join(QLatin1String(", ")) + QLatin1Char(')'));
}
