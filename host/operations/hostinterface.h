#pragma once

#include <zorv/core/interface.h>

#include <QHash>

class QSettings;

namespace Operations {

/// The part of the library's host interface that needs no widget: settings, engine, texts. The
/// window derives from it; the command line uses it directly.
///
/// Everything that needs a window returns null or does nothing here.
class HostInterface : public Zorv::Interface
{
public:
    /// `settings` is not owned and must outlive the object. With null, every setting starts with
    /// its default and changes are lost with the object. The command line uses that, because its
    /// results must not depend on the settings of the user's window.
    explicit HostInterface(QSettings* settings = nullptr);

    /// Uninstalls itself if it is the installed one.
    ~HostInterface() override;

    /// The storage of the settings; null if there is none.
    QSettings* settings() const { return m_settings; }

    /// The default of a setting; invalid for an unknown key.
    static QVariant defaultOption(const QString& key);

    /// The stored setting, converted to the type of its default; else the default.
    QVariant storedOption(const QString& key) const;

    /// Like `storedOption()`, but a host may resolve the value further, such as an unset colour to
    /// the theme's.
    QVariant option(const QString& key) const override;
    void setOption(const QString& key, const QVariant& value) override;
    QColor colorOption(const QString& key) const override;

    QString text(unsigned id) const override;

    /// Calls `newIds()` for the current project.
    void soundIdentifiers(const QStringList& files, QList<QVariant>* identifiers) override;
    Zorv::EngineModel* engineModel() const override;

    /// Scales by the logical resolution of the first screen.
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

    /// False: without a window nobody can be notified of a changed file.
    bool watchesFiles() const override;

private:
    QSettings* m_settings;
    QHash<QString, QVariant> m_options;  ///< used if `m_settings` is null
};

/// Installs the host, and UTF-8 as the default encoding for files whose encoding cannot be
/// detected. Call it once, before using anything else of the library.
void startHost(HostInterface* host);

}  // namespace Operations
