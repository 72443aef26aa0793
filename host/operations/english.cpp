#include "operations/english.h"

#include <QCoreApplication>
#include <QTranslator>

// The library is linked statically, so nothing else loads its resources. Qt's macro requires a
// function in the global namespace.
static void loadEnglish()
{
    Q_INIT_RESOURCE(english);
}

namespace Operations {

void speakEnglish()
{
    const QLatin1String name("english");
    QCoreApplication* application = QCoreApplication::instance();
    if (!application || application->findChild<QTranslator*>(name)) {
        return;
    }
    loadEnglish();
    for (const char* file : {"zorv_en_words", "zorv_en"}) {
        auto* translator = new QTranslator(application);
        translator->setObjectName(name);
        if (translator->load(QLatin1String(file), QStringLiteral(":/english"))) {
            QCoreApplication::installTranslator(translator);
        }
    }
}

}  // namespace Operations
