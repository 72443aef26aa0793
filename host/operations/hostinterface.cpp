#include "operations/hostinterface.h"

#include "family/assets/soundfile.h"
#include "family/project/familyenginemodel.h"
#include "family/project/familyproject.h"
#include "operations/english.h"
#include "operations/media/assetnames.h"
#include "operations/media/soundformats.h"

#include <zorv/code/codecs/textcodecs.h>
#include <zorv/core/progressreporter.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

namespace Operations {

using Family::FamilyEngineModel;

namespace {

class SilentProgress final : public Zorv::ProgressReporter
{
public:
    void update(int, int) override {}
    void finish() override { delete this; }
};

// The default settings of the library.
const QHash<QString, QVariant>& defaults()
{
    static const QHash<QString, QVariant> table{
        {QStringLiteral("parseCode"), true},
        {QStringLiteral("highlightCode"), true},
        {QStringLiteral("enable_file_watcher"), true},
        {QStringLiteral("sort_file_names"), true},
        {QStringLiteral("backup_onload"), false},
        {QStringLiteral("confirm_delete"), true},
        {QStringLiteral("show_organizer"), true},
        {QStringLiteral("switch_frame_spr"), false},
        {QStringLiteral("switch_to_imgpal"), true},
        {QStringLiteral("show_code_bar"), true},
        {QStringLiteral("auto_expand_tree"), false},
        {QStringLiteral("code_line_numbers"), true},
        {QStringLiteral("code_folding_markers"), true},
        {QStringLiteral("code_highlight_line"), true},
        {QStringLiteral("code_highlight_blocks"), false},
        {QStringLiteral("code_paren_matching"), true},
        {QStringLiteral("code_comments_travel"), true},
        {QStringLiteral("line"), QColor()},
        {QStringLiteral("block_range"), QColor()},
        {QStringLiteral("paren_range"), QColor()},
        {QStringLiteral("paren"), QColor()},
        {QStringLiteral("recovery_seconds"), 5},
        {QStringLiteral("language"), QString()},
        {QStringLiteral("theme"), QString()},
        {QStringLiteral("font_name"), QString()},
        {QStringLiteral("font_size"), 0},
        {QStringLiteral("project_path"), QString()},
        {QStringLiteral("cache_type"), 1},
        {QStringLiteral("undo_megabytes"), 256},
        {QStringLiteral("pal_move"), 0},
        // Rulers use the inverse of the first of these two colours, on both.
        {QStringLiteral("back_start"), QColor(0x2e, 0x33, 0x3b)},
        {QStringLiteral("back_end"), QColor(0x4a, 0x52, 0x5e)},
        {QStringLiteral("background_type"), 0},
        {QStringLiteral("background_file"), QString()},
        {QStringLiteral("background_x"), 0},
        {QStringLiteral("background_y"), 0},
        {QStringLiteral("attackbox"), QColor(0xff, 0x5a, 0x4a)},
        {QStringLiteral("collisionbox"), QColor(0x4a, 0xa8, 0xff)},
        {QStringLiteral("box_opacity"), 0.5},
        {QStringLiteral("crosshair_type"), 0},
        {QStringLiteral("crosshair_main"), QString()},
        {QStringLiteral("crosshair_secondary"), QString()},
        {QStringLiteral("crosshair_extra"), QString()},
        {QStringLiteral("sprite_over_guides"), false},
        {QStringLiteral("contact_over_cross"), false},
        {QStringLiteral("zoom_mode"), 0},
        {QStringLiteral("zoom_center"), 2},
        {QStringLiteral("zoom_level"), 5},
        {QStringLiteral("show_cross0"), true},
        {QStringLiteral("show_cross1"), true},
        {QStringLiteral("show_cross2"), false},
        {QStringLiteral("show_rulers"), false},
        {QStringLiteral("show_guides"), false},
        {QStringLiteral("show_attack_box"), true},
        {QStringLiteral("show_collision_box"), true},
        {QStringLiteral("onion_effect"), 0},
        {QStringLiteral("onion_opacity"), 0.5},
        {QStringLiteral("onion_before"), 1},
        {QStringLiteral("onion_after"), 0},
    };
    return table;
}

const double ReferenceResolution = 96;

}  // namespace

HostInterface::HostInterface(QSettings* settings) : m_settings(settings) {}

HostInterface::~HostInterface()
{
    if (instance() == this) {
        setGlobalInterface(nullptr);
    }
}

QVariant HostInterface::defaultOption(const QString& key)
{
    return defaults().value(key);
}

QVariant HostInterface::option(const QString& key) const
{
    return storedOption(key);
}

QVariant HostInterface::storedOption(const QString& key) const
{
    QVariant value = m_settings ? m_settings->value(key) : m_options.value(key);
    const QVariant fallback = defaultOption(key);
    // A settings file stores booleans and numbers as text.
    if (value.isValid() && fallback.isValid() && !value.convert(int(fallback.type()))) {
        value = QVariant();
    }
    return value.isValid() ? value : fallback;
}

void HostInterface::setOption(const QString& key, const QVariant& value)
{
    if (m_settings && value.isNull()) {
        m_settings->remove(key);
    } else if (m_settings) {
        m_settings->setValue(key, value);
    } else if (value.isNull()) {
        m_options.remove(key);
    } else {
        m_options.insert(key, value);
    }
}

QColor HostInterface::colorOption(const QString& key) const
{
    return option(key).value<QColor>();
}

QString HostInterface::text(unsigned id) const
{
    switch (id) {
    case 2:
        return QCoreApplication::translate("Operations::HostInterface", "Left out");
    case 3:
        return QCoreApplication::translate("Operations::HostInterface",
                                           "'%1' could not be read. It is damaged, or its format "
                                           "is not known here.");
    case 4:
        return QCoreApplication::translate("Operations::HostInterface",
                                           "The %1 %2 of the project '%3' is empty.");
    case 7:
        return QCoreApplication::translate("Operations::HostInterface", "All known files");
    case 8:
        return QCoreApplication::translate("Operations::HostInterface", "Find");
    default:
        return {};
    }
}

void HostInterface::soundIdentifiers(const QStringList& files, QList<QVariant>* identifiers)
{
    const auto* project = dynamic_cast<const Family::FamilyProject*>(currentProject());
    const Family::SoundFile* sounds = project ? project->sounds() : nullptr;
    identifiers->clear();
    const auto free = [sounds](Family::AssetId from) {
        return sounds ? sounds->freeId(from) : from;
    };
    for (const Family::AssetId id : newIds(files, free)) {
        identifiers->append(id.text());
    }
}

Zorv::EngineModel* HostInterface::engineModel() const
{
    return FamilyEngineModel::instance();
}

int HostInterface::pixels(int size) const
{
    const auto* screen = qobject_cast<QGuiApplication*>(QCoreApplication::instance())
                             ? QGuiApplication::primaryScreen()
                             : nullptr;
    return screen ? qRound(size * screen->logicalDotsPerInch() / ReferenceResolution) : size;
}

QWidget* HostInterface::mainWindow() const
{
    return nullptr;
}

Zorv::ProgressReporter* HostInterface::progress(const QString&, int)
{
    return new SilentProgress;
}

Zorv::Editor* HostInterface::currentEditor() const
{
    return nullptr;
}

Zorv::Editor* HostInterface::editorByName(const char*) const
{
    return nullptr;
}

Zorv::Editor* HostInterface::fileEditor(Zorv::ProjectFile*, Zorv::FileID) const
{
    return nullptr;
}

unsigned HostInterface::projectCount() const
{
    return 0;
}

Zorv::Project* HostInterface::projectAt(unsigned) const
{
    return nullptr;
}

Zorv::Project* HostInterface::currentProject() const
{
    return nullptr;
}

void HostInterface::selectPaletteFiles(QStringList&, QStringList&, bool*) {}

void HostInterface::showStatus(int, const QString&) {}

QObject* HostInterface::addControl(const QString&, const Zorv::Control&)
{
    return nullptr;
}

QMenu* HostInterface::menu(const char*) const
{
    return nullptr;
}

QAction* HostInterface::createAction(const char* const*, const QString&, Zorv::Translator*,
                                     unsigned, const char*, QObject*, const char*, const char*,
                                     const char*)
{
    return nullptr;
}

QAction* HostInterface::createEditorAction(const QString&, Zorv::Translator*, unsigned)
{
    return nullptr;
}

void HostInterface::setMenuEnabled(const char*, const char*, bool) {}

Zorv::ExtraEditor* HostInterface::extraEditor(unsigned) const
{
    return nullptr;
}

void HostInterface::refreshProjects() {}

void HostInterface::activateEditor(Zorv::Editor*) {}

bool HostInterface::watchesFiles() const
{
    return false;
}

void startHost(HostInterface* host)
{
    setGlobalInterface(host);
    speakEnglish();
    Zorv::TextCodecs::setDefaultCodec(Zorv::TextCodecs::index("UTF-8"));
    registerSoundFormats();
}

}  // namespace Operations
