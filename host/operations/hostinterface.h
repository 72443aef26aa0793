#pragma once

#include <zorv/core/interface.h>

#include <QHash>

class QSettings;

namespace Operations {

/// The host's side of the library, as far as it needs no widget: settings,
/// engine, texts. The window derives from it; the command line uses it as it is.
///
/// Everything that belongs to a window is null or does nothing here.
class HostInterface : public Zorv::Interface
{
public:
    /// `settings` is not owned and must outlive the object. With null, every
    /// setting has its default at first and lives as long as the object: what a
    /// command does must not depend on the person's window.
    explicit HostInterface(QSettings* settings = nullptr);

    /// Takes itself away, if it is the installed one.
    ~HostInterface() override;

    /// Where settings are stored; null for nowhere.
    QSettings* settings() const { return m_settings; }

    /// What a setting is if nothing else was stored; invalid for an unknown key.
    static QVariant defaultOption(const QString& key);

    /// The stored setting in the type of its default, else the default.
    QVariant storedOption(const QString& key) const;

    /// The same, unless a host knows better what is meant: the theme's colour for none.
    QVariant option(const QString& key) const override;
    void setOption(const QString& key, const QVariant& value) override;
    QColor colorOption(const QString& key) const override;

    QString text(unsigned id) const override;

    /// As `newIds()`, for the project in front.
    void soundIdentifiers(const QStringList& files, QList<QVariant>* identifiers) override;
    Zorv::EngineModel* engineModel() const override;

    /// By the logical resolution of the first screen.
    int pixels(int size) const override;

    QWidget* mainWindow() const override;

    /// A reporter that shows nothing.
    Zorv::ProgressReporter* progress(const QString& title, int style) override;
    Zorv::Editor* currentEditor() const override;
    Zorv::Editor* editorByName(const char* name) const override;
    Zorv::Editor* fileEditor(Zorv::ProjectFile* file, Zorv::FileID id) const override;
    unsigned projectCount() const override;
    Zorv::Project* projectAt(unsigned index) const override;
    Zorv::Project* currentProject() const override;
    void selectPaletteFiles(QStringList& files, QStringList& names, bool* flag) override;
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
    void activateEditor(Zorv::Editor* editor) override;

    /// False: without a window nobody is there when a file changes.
    bool watchesFiles() const override;

private:
    QSettings* m_settings;
    QHash<QString, QVariant> m_options;  ///< where there is no `m_settings`
};

/// Installs the host, and UTF-8 as the encoding of files in which nothing else
/// shows itself. Called once, before anything else of the library.
void startHost(HostInterface* host);

}  // namespace Operations
