#include "operations/agreements.h"

#include "family/project/familyenginemodel.h"
#include "family/project/gameprogram.h"

#include <QCryptographicHash>
#include <QSettings>
#include <QStringList>

namespace Operations {

using Family::FamilyEngineModel;
using Family::GameProgram;

namespace {

// A hash, because paths may contain characters that are not allowed in keys.
QString keyOf(const GameProgram& program)
{
    const QByteArray path =
        QCryptographicHash::hash(program.path().toUtf8(), QCryptographicHash::Sha256).toHex();
    return QLatin1String("agreed_programs/") + QLatin1String(path);
}

}  // namespace

Agreement agreementTo(const GameProgram& program, QSettings& settings)
{
    const QStringList stored = settings.value(keyOf(program)).toStringList();
    if (program.checksum().isEmpty() || stored.value(0) != program.path()) {
        return Agreement::None;
    }
    return stored.value(1).toLatin1() == program.checksum() ? Agreement::Given
                                                            : Agreement::Outdated;
}

bool agreeTo(const GameProgram& program, QSettings& settings)
{
    settings.setValue(keyOf(program),
                      QStringList{program.path(), QString::fromLatin1(program.checksum())});
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

NamedProgram::NamedProgram(const GameProgram& program)
{
    FamilyEngineModel::instance()->setGameProgram(program);
}

NamedProgram::~NamedProgram()
{
    FamilyEngineModel::instance()->setGameProgram({});
}

}  // namespace Operations
