#include "image/spritesave_p.h"

#include "cache/palette.h"
#include "cache/sprite.h"
#include "cache/spritenumber.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/files.h"
#include "core/interface.h"
#include "core/progress.h"
#include "core/project.h"
#include "core/safefile.h"
#include "image/imagefilelists_p.h"
#include "media/fileextensiontype.h"
#include "media/imagetransfer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace Zorv {

namespace {

/// The context of the texts of this file for translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::SpriteSave)
};

/// For sprites without numbers: the identifier, without characters that are special in paths.
QString safeName(const Sprite* sprite, int row)
{
    static const QRegularExpression unsafe(QStringLiteral("[\\x00-\\x1f/\\\\%:*?\"<>|,]"));
    QString name = sprite ? sprite->property(QStringLiteral("Identifier")).toString() : QString();
    name.replace(unsafe, QStringLiteral("-"));
    return name.isEmpty() ? QStringLiteral("sprite-%1").arg(row + 1) : name;
}

/// "GROUP-NUMBER", and "GROUP-NUMBER_2" for the second sprite with the same number.
QStringList namesOf(const Sprites& sprites, const QVector<int>& rows)
{
    QHash<QString, int> counts;
    QStringList names;
    for (int row : rows) {
        const SpriteNumber sprite = spriteNumber(sprites.sprite(row));
        const QString name = sprite.isValid() ? QString::number(sprite.group) + QLatin1Char('-') +
                                                    QString::number(sprite.number)
                                              : safeName(sprites.sprite(row), row);
        const int count = ++counts[name];
        names.append(count == 1 ? name : name + QLatin1Char('_') + QString::number(count));
    }
    return names;
}

/// Stores axis and palette as texts of a PNG file, so that loading restores them.
void putTexts(QImage* image, const Sprite& sprite)
{
    const QPoint axis = sprite.axis();
    image->setText(QLatin1String(AxisText), QStringLiteral("%1,%2").arg(QString::number(axis.x()),
                                                                        QString::number(axis.y())));
    if (const Palette* palette = sprite.palette()) {
        image->setText(QLatin1String(PaletteText),
                       palette->property(QStringLiteral("Identifier")).toString());
    }
}

}  // namespace

SpriteSave::SpriteSave(Sprites* sprites, const QVector<int>& rows, Project* project, const Way& way)
    : m_way(way), m_sprites(sprites), m_project(project), m_names(namesOf(*sprites, rows))
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
    return m_rows.size() == 1
               ? askForFile()
               : (m_way.naming == IntoFolder ? askForFolder() : askForName()) && mayReplace();
}

bool SpriteSave::askForFile()
{
    const QString proposal =
        startFolder() + QLatin1Char('/') + m_names.first() + QLatin1String(".png");
    const QString path = Dialogs::instance()->saveFileName(
        nullptr, m_way.title, proposal,
        QLatin1String(fileExtension(FileExtensionType::ImagesPngFirst)));
    m_paths = QStringList(path);
    keepFolder(path.isEmpty() ? path : QFileInfo(path).absolutePath());
    return !path.isEmpty();
}

bool SpriteSave::askForFolder()
{
    const QString folder = Dialogs::instance()->existingFolder(nullptr, m_way.title, startFolder());
    if (folder.isEmpty()) {
        return false;
    }
    keepFolder(folder);
    const QStringList formats{QStringLiteral("PNG"), QStringLiteral("GIF"), QStringLiteral("PCX"),
                              QStringLiteral("BMP")};
    const int format =
        Dialogs::instance()->choose(m_way.title, Text::tr("Format of the files:"), formats, 0);
    if (format < 0) {
        return false;
    }
    for (const QString& name : qAsConst(m_names)) {
        m_paths.append(folder + QLatin1Char('/') + name + QLatin1Char('.') +
                       formats.at(format).toLower());
    }
    return true;
}

/// The dialog confirms overwriting only the chosen name itself, which no file gets.
bool SpriteSave::askForName()
{
    const QString chosen = Dialogs::instance()->saveFileName(
        nullptr, m_way.title, startFolder() + QLatin1String("/sprite.png"),
        QLatin1String(fileExtension(FileExtensionType::ImagesPngFirst)));
    if (chosen.isEmpty()) {
        return false;
    }
    const QFileInfo info(chosen);
    keepFolder(info.absolutePath());
    for (const QString& name : qAsConst(m_names)) {
        m_paths.append(info.absolutePath() + QLatin1Char('/') + info.completeBaseName() +
                       QLatin1Char('_') + name + QLatin1Char('.') + info.suffix());
    }
    return true;
}

/// Asks before files are replaced, because no file dialog has asked about these names yet.
bool SpriteSave::mayReplace() const
{
    const auto existing = std::count_if(m_paths.begin(), m_paths.end(), [](const QString& path) {
        return QFileInfo::exists(path);
    });
    return existing == 0 ||
           Dialogs::instance()->question(
               m_way.title,
               Text::tr("%n file(s) of these names are in the folder already. Replace them?",
                        nullptr, int(existing)),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

QString SpriteSave::startFolder() const
{
    return imageFolder(m_project);
}

void SpriteSave::keepFolder(const QString& folder)
{
    keepImageFolder(m_project, folder);
}

void SpriteSave::write()
{
    int written = 0;
    Progress progress(m_way.title, m_rows.size());
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

/// Writes one sprite. Returns the error, empty on success.
QString SpriteSave::write(int index)
{
    const QString& path = m_paths.at(index);
    const QPersistentModelIndex& row = m_rows.at(index);
    const Sprite* sprite = m_sprites && row.isValid() ? m_sprites->sprite(row.row()) : nullptr;
    if (!sprite) {
        return Text::tr("The sprite for '%1' is not there any more.").arg(path);
    }
    QImage image = sprite->image();
    if (image.isNull()) {
        return Text::tr("'%1' is not written: the pixels of the sprite are missing or broken.")
            .arg(path);
    }
    putTexts(&image, *sprite);
    const QByteArray bytes = imageFileBytes(image, fileExtension(path));
    if (bytes.isEmpty()) {
        return Text::tr("'%1' is not written: no image can be saved in this format. Please take "
                        "another one.")
            .arg(path);
    }
    QString error;
    if (SafeFile::save(path, bytes, &error)) {
        warnOfLoss(path, image);
    }
    return error;
}

void SpriteSave::warnOfLoss(const QString& path, const QImage& image)
{
    switch (imageLoss(image, fileExtension(path))) {
    case ImageLoss::Transparent:
        m_warnings.append(Text::tr("'%1' was written without the transparency of the picture: the "
                                   "format has no place for it. PNG keeps it.")
                              .arg(path));
        break;
    case ImageLoss::HalfTransparent:
        m_warnings.append(Text::tr("'%1' was written without what is half transparent in the "
                                   "picture: GIF has no place for it. PNG keeps it.")
                              .arg(path));
        break;
    case ImageLoss::None:
        break;
    }
}

void SpriteSave::tellResult(int written)
{
    const QString done = Text::tr("%n file(s) written.", nullptr, written);
    const QStringList told = m_errors + m_warnings;
    if (told.isEmpty()) {
        Interface::instance()->showStatus(0, done);
        return;
    }
    const QString text = shortList(told) + QLatin1Char('\n') + done;
    if (m_errors.isEmpty()) {
        Dialogs::instance()->warning(m_way.title, text);
    } else {
        Dialogs::instance()->error(m_way.title, text);
    }
}

}  // namespace Zorv
