#include "editors/sound/sndimportdlg.h"

#include "cache/sound.h"
#include "cache/sounds.h"
#include "core/interface.h"
#include "core/project.h"

using Zorv::Sounds;

namespace {

Sounds* soundsOf(const Zorv::Project* project)
{
    return project ? dynamic_cast<Sounds*>(project->file(Zorv::FileID::Sounds)) : nullptr;
}

QString identifierOf(const Zorv::Sound* sound)
{
    return sound ? sound->property(QStringLiteral("Identifier")).toString() : QString();
}

}  // namespace

SndImportDlg::SndImportDlg(Zorv::Interface* host)
    : SndImportDlg(host, soundsOf(host->currentProject()))
{
}

SndImportDlg::SndImportDlg(Zorv::Interface* host, Sounds* destination)
    : ImportDlg(host, destination ? destination->project() : host->currentProject()),
      m_destination(destination)
{
    start(0);
    if (destination) {
        connect(destination, &Sounds::changed, this, [this] { readPresent(); });
        connect(destination, &QObject::destroyed, this, &QDialog::reject);
    }
}

SndImportDlg::~SndImportDlg() = default;

QVector<QAbstractItemModel*> SndImportDlg::lists(const Zorv::Project* project) const
{
    Sounds* sounds = soundsOf(project);
    return sounds && sounds != m_destination ? QVector<QAbstractItemModel*>{sounds}
                                             : QVector<QAbstractItemModel*>();
}

QString SndImportDlg::identifier(const QModelIndex& index) const
{
    const auto* sounds = qobject_cast<const Sounds*>(index.model());
    return sounds ? identifierOf(sounds->sound(index.row())) : QString();
}

QSet<QString> SndImportDlg::present() const
{
    QSet<QString> result;
    for (int row = 0; m_destination && row < int(m_destination->count()); ++row) {
        result.insert(identifierOf(m_destination->sound(row)));
    }
    return result;
}

bool SndImportDlg::isUsable(const QString& identifier) const
{
    return !identifier.trimmed().isEmpty() && m_destination && m_destination->canName(identifier);
}
