#include "cli/spriteopening.h"

#include "cli/cli.h"
#include "cli/output.h"
#include "cli/results.h"
#include "family/assets/newsprites.h"
#include "family/assets/spritecollection.h"

#include <zorv/core/filesystemarchive.h>

#include <QFileInfo>

namespace Cli {

OpenSprites::OpenSprites(const QString& path, Kind kind)
{
    if (kind == OrNew && !QFileInfo::exists(path)) {
        m_sprites = Family::newSprites(path);
        return;
    }
    QString error;
    m_sprites = Family::openSprites(path, &error);
    if (!m_sprites) {
        complain(error);
        return;
    }
    const QStringList broken = m_sprites->loadErrors();
    for (const QString& line : broken) {
        complain(line);
    }
}

OpenSprites::~OpenSprites()
{
    if (m_sprites) {
        m_sprites->release();
    }
}

int OpenSprites::save(const QString& path) const
{
    if (!m_sprites->isModified() && path == m_sprites->fileName()) {
        return Fine;
    }
    return m_sprites->toFile(*Zorv::FileSystemArchive::instance(), path, false)
               ? int(Fine)
               : notDone(m_sprites->errorString());
}

}  // namespace Cli
