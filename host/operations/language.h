#pragma once

#include <QString>
#include <QVector>

namespace Operations {

/// A language of the programs.
struct LanguageInfo
{
    QString code;  ///< of ISO 639, "en"
    QString name;  ///< in the language itself
};

/// The language in which a window speaks. The texts in the code are English; each other language
/// is a file of translations among the resources. The command line stays English.
class Language
{
public:
    /// All that can be chosen, English first.
    static const QVector<LanguageInfo>& all();

    /// The code of the one in use.
    static QString current();

    /// Changes the language of all windows, Qt's own texts included. An empty code is the first
    /// language of the system that is there; an unknown one is English.
    static void use(const QString& code);
};

}  // namespace Operations
