#pragma once

#include <QString>
#include <QVector>

namespace Operations {

/// A user-interface language.
struct LanguageInfo
{
    QString code;  ///< ISO 639, such as "en"
    QString name;  ///< in the language itself
};

/// The language of the windows. The texts in the code are English. Each other language is a
/// translation file in the resources. The command line is always English.
class Language
{
public:
    /// All available languages, English first.
    static const QVector<LanguageInfo>& all();

    /// The code of the current language.
    static QString current();

    /// Changes the language of all windows, including Qt's own texts. An empty code selects the
    /// first system language that is available. An unknown code selects English.
    static void use(const QString& code);
};

}  // namespace Operations
