#include "operations/engines.h"

#include "family/project/familyenginemodel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

namespace Operations {

using Family::FamilyEngineModel;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

const struct
{
    const char* key;
    QString Zorv::EngineInfo::*field;
} fields[] = {
    {"name", &Zorv::EngineInfo::name},
    {"executable", &Zorv::EngineInfo::executable},
    {"parameters", &Zorv::EngineInfo::parameters},
    {"icon", &Zorv::EngineInfo::icon},
};

QString arrayName()
{
    return QStringLiteral("engines");
}

bool asksForProject(const QString& parameters)
{
    static const QRegularExpression mark(QStringLiteral("%\\d"));
    return parameters.contains(mark);
}

}  // namespace

QString defaultEngineParameters()
{
    return QStringLiteral("%0");
}

QVector<Zorv::EngineInfo> loadEngines(QSettings& settings)
{
    QVector<Zorv::EngineInfo> engines;
    const int count = qBound(0, settings.beginReadArray(arrayName()), MaxEngines);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        Zorv::EngineInfo engine;
        for (const auto& row : fields) {
            engine.*row.field = settings.value(QLatin1String(row.key)).toString();
        }
        engines.append(engine);
    }
    settings.endArray();
    return engines;
}

bool saveEngines(QSettings& settings, const QVector<Zorv::EngineInfo>& engines)
{
    settings.remove(arrayName());
    settings.beginWriteArray(arrayName(), engines.size());
    for (int i = 0; i < engines.size(); ++i) {
        settings.setArrayIndex(i);
        for (const auto& row : fields) {
            settings.setValue(QLatin1String(row.key), engines.at(i).*row.field);
        }
    }
    settings.endArray();
    settings.sync();
    // Ignore format errors from reading the old file: it has been rewritten.
    return settings.status() != QSettings::AccessError;
}

void useEngines(QSettings& settings)
{
    FamilyEngineModel::instance()->setEngines(loadEngines(settings));
}

QString engineProblem(const Zorv::EngineInfo& engine)
{
    if (engine.name.trimmed().isEmpty()) {
        return Text::tr("The engine has no name.");
    }
    if (engine.executable.isEmpty()) {
        return Text::tr("Choose the program of the engine '%1'.").arg(engine.name);
    }
    if (QDir::isRelativePath(engine.executable)) {
        return Text::tr("'%1' is another program in each folder. Write its whole path.")
            .arg(engine.executable);
    }
    if (!QFileInfo(engine.executable).isFile()) {
        return Text::tr("There is no program '%1'. Correct its path.").arg(engine.executable);
    }
    if (!asksForProject(engine.parameters)) {
        return Text::tr(
                   "The parameters of the engine '%1' ask for no project. Write %2 in the place of "
                   "the project in front.")
            .arg(engine.name, defaultEngineParameters());
    }
    return {};
}

}  // namespace Operations
