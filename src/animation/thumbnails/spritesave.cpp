#include "animation/thumbnails/spritesave_p.h"

#include "cache/sprite.h"
#include "cache/spritenumber.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/files.h"
#include "core/interface.h"
#include "core/progress_p.h"
#include "core/project.h"
#include "core/safefile.h"
#include "media/fileextensiontype.h"
#include "media/imagefile.h"
#include "text/zorvtranslator.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace Zorv {

namespace {

constexpr unsigned TitleText = 171;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SpriteSave)
};

QString title()
{
    return ZorvTranslator::instance()->trText(TitleText);
}

QString folderKey()
{
    return QStringLiteral("spr_path");
}

/// "GROUP-NUMBER", and "GROUP-NUMBER_2" for the second sprite of the same number.
QStringList namesOf(const Sprites& sprites, const QVector<int>& rows)
{
    QHash<QString, int> counts;
    QStringList names;
    for (int row : rows) {
        const SpriteNumber sprite = spriteNumber(sprites.sprite(row));
        const QString name = sprite.isValid() ? QString::number(sprite.group) + QLatin1Char('-') +
                                                    QString::number(sprite.number)
                                              : QStringLiteral("sprite-%1").arg(row + 1);
        const int count = ++counts[name];
        names.append(count == 1 ? name : name + QLatin1Char('_') + QString::number(count));
    }
    return names;
}

}  // namespace

SpriteSave::SpriteSave(Sprites* sprites, const QVector<int>& rows, Project* project)
    : m_sprites(sprites), m_project(project), m_names(namesOf(*sprites, rows))
{
    for (int row : rows) {
        m_rows.append(sprites->index(row, 0));
    }
}

void SpriteSave::run()
{
    if (!m_rows.isEmpty() && ask()) {
        write();
    }
}

bool SpriteSave::ask()
{
    return m_rows.size() == 1 ? askForFile() : askForFolder() && mayReplace();
}

bool SpriteSave::askForFile()
{
    const QString proposal =
        startFolder() + QLatin1Char('/') + m_names.first() + QLatin1String(".png");
    const QString path = Dialogs::instance()->saveFileName(
        nullptr, title(), proposal,
        QLatin1String(fileExtension(FileExtensionType::ImagesPngFirst)));
    m_paths = QStringList(path);
    keepFolder(path.isEmpty() ? path : QFileInfo(path).absolutePath());
    return !path.isEmpty();
}

bool SpriteSave::askForFolder()
{
    const QString folder = Dialogs::instance()->existingFolder(nullptr, title(), startFolder());
    if (folder.isEmpty()) {
        return false;
    }
    keepFolder(folder);
    const QStringList formats{QStringLiteral("PNG"), QStringLiteral("GIF"), QStringLiteral("PCX"),
                              QStringLiteral("BMP")};
    const int format =
        Dialogs::instance()->choose(title(), Text::tr("Format of the files:"), formats, 0);
    if (format < 0) {
        return false;
    }
    for (const QString& name : qAsConst(m_names)) {
        m_paths.append(folder + QLatin1Char('/') + name + QLatin1Char('.') +
                       formats.at(format).toLower());
    }
    return true;
}

/// A file dialog has asked about a file, but nobody yet about those of a folder.
bool SpriteSave::mayReplace() const
{
    const auto existing = std::count_if(m_paths.begin(), m_paths.end(), [](const QString& path) {
        return QFileInfo::exists(path);
    });
    return existing == 0 ||
           Dialogs::instance()->question(
               title(),
               Text::tr("%n file(s) of these names are in the folder already. Replace them?",
                        nullptr, int(existing)),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

QString SpriteSave::startFolder() const
{
    const auto option = [this](const QString& key) {
        return m_project ? m_project->option(key).toString() : QString();
    };
    const QString folder = option(folderKey());
    return folder.isEmpty() ? option(QStringLiteral("project_path")) : folder;
}

void SpriteSave::keepFolder(const QString& folder)
{
    if (m_project && !folder.isEmpty()) {
        m_project->setOption(folderKey(), folder, false);
    }
}

void SpriteSave::write()
{
    int written = 0;
    Progress progress(title(), m_rows.size());
    for (int i = 0; i < m_rows.size(); ++i) {
        const QString error = write(i);
        if (error.isEmpty()) {
            ++written;
        } else {
            m_errors.append(error);
        }
        if (!progress.step()) {
            break;
        }
    }
    tellResult(written);
}

/// Empty if that was done.
QString SpriteSave::write(int index) const
{
    const QString& path = m_paths.at(index);
    const QPersistentModelIndex& row = m_rows.at(index);
    const Sprite* sprite = m_sprites && row.isValid() ? m_sprites->sprite(row.row()) : nullptr;
    if (!sprite) {
        return Text::tr("The sprite for '%1' is not there any more.").arg(path);
    }
    const QImage image = sprite->image();
    if (image.isNull()) {
        return Text::tr("'%1' is not written: the pixels of the sprite are missing or broken.")
            .arg(path);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!saveImage(&buffer, fileExtension(path).constData(), image)) {
        return Text::tr("'%1' is not written: no image can be saved in this format. Please take "
                        "another one.")
            .arg(path);
    }
    QString error;
    SafeFile::save(path, buffer.data(), &error);
    return error;
}

void SpriteSave::tellResult(int written)
{
    const QString done = Text::tr("%n file(s) written.", nullptr, written);
    if (m_errors.isEmpty()) {
        Interface::instance()->showStatus(0, done);
        return;
    }
    tellFailures(title(), m_errors, done);
}

}  // namespace Zorv
