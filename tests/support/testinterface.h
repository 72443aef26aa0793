#pragma once

#include "core/interface.h"
#include "core/progressreporter.h"

#include <QList>
#include <QMap>
#include <QPair>
#include <QPointer>

#include <memory>

class TestControls;

/// A host that writes down what the library asks of it.
///
/// It installs itself and takes itself away. Everything is a public member, to
/// be filled before a test and read after it.
class TestInterface : public Zorv::Interface
{
public:
    /// One progress display, as far as it came.
    struct Progress
    {
        QString title;
        QList<QPair<int, int>> updates;  ///< value, maximum
        bool finished = false;
    };

    TestInterface();
    ~TestInterface() override;

    QMap<QString, QVariant> options;
    QMap<unsigned, QString> texts;
    QList<Zorv::Project*> projects;
    QPointer<QWidget> window;
    Zorv::EngineModel* engines = nullptr;
    Zorv::Editor* editor = nullptr;           ///< the active one
    Zorv::Workspace* workspace = nullptr;     ///< the one in the middle
    Zorv::ExtraEditor* panel = nullptr;       ///< the one that was shown last
    QMap<QByteArray, Zorv::Editor*> editors;  ///< by name
    QMap<Zorv::ProjectFile*, Zorv::Editor*> fileEditors;
    QMap<unsigned, Zorv::ExtraEditor*> extraEditors;
    QMap<QByteArray, QMenu*> menus;
    Zorv::Project* frontProject = nullptr;
    QStringList paletteFiles, paletteNames;  ///< the answer of selectPaletteFiles()

    QMap<QString, QAction*> actions;            ///< those that were asked for, by name
    QMap<QString, QStringList> areasOf;         ///< and where they apply
    QMap<QString, QPointer<QWidget>> controls;  ///< the widgets made of published controls

    QStringList calls;                    ///< names of the calls that change something
    QList<QPair<int, QString>> statuses;  ///< each showStatus()
    QList<Progress> progresses;
    int cancelAfter = -1;  ///< the step after which the person gives up
    int refreshCount = 0;
    bool watches = true;

    bool watchesFiles() const override { return watches; }

    /// The window that holds all controls, null before the first.
    QWidget* controlsWindow() const;

    /// The last text of a field of the status bar.
    QString status(int field) const;

    QString text(unsigned id) const override;
    QWidget* mainWindow() const override;
    Zorv::ProgressReporter* progress(const QString& title, int style) override;
    Zorv::EngineModel* engineModel() const override;
    Zorv::Editor* currentEditor() const override;
    Zorv::Editor* editorByName(const char* name) const override;
    Zorv::Editor* fileEditor(Zorv::ProjectFile* file, Zorv::FileID id) const override;
    unsigned projectCount() const override;
    Zorv::Project* projectAt(unsigned index) const override;
    Zorv::Project* currentProject() const override;
    int pixels(int size) const override;
    QColor colorOption(const QString& key) const override;
    void selectPaletteFiles(QStringList& files, QStringList& names, bool* flag) override;
    QVariant option(const QString& key) const override;
    void setOption(const QString& key, const QVariant& value) override;
    void showStatus(int field, const QString& text) override;
    QObject* addControl(const QString& name, const Zorv::Control& control) override;
    QMenu* menu(const char* name) const override;
    QAction* createAction(const char* const* areas, const QString& name,
                          Zorv::Translator* translator, unsigned textId, const char* shortcut,
                          QObject* receiver, const char* slot, const char* enableSignal,
                          const char* checkSignal) override;
    QAction* createEditorAction(const QString& name, Zorv::Translator* translator,
                                unsigned textId) override;
    void setMenuEnabled(const char* menu, const char* group, bool enabled) override;
    Zorv::ExtraEditor* extraEditor(unsigned index) const override;
    void refreshProjects() override;
    void activateEditor(Zorv::Editor* newEditor) override;
    void showWorkspace(Zorv::Workspace* newWorkspace) override;
    void showExtraEditor(Zorv::ExtraEditor* extraEditor) override;

private:
    void record(const char* call, const QStringList& arguments = {});

    QAction* makeAction(const QString& name, Zorv::Translator* translator, unsigned textId);

    QObject m_owner;  ///< of the actions that were made
    std::unique_ptr<TestControls> m_controls;
};
