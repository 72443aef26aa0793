#pragma once

#include <QString>
#include <QVector>

#include <functional>

class QObject;

namespace App {

/// A language of the window.
struct LanguageInfo
{
    QString code;  ///< of ISO 639, "en"
    QString name;  ///< in the language itself
};

/// The language in which the window speaks. The texts in the code are English; each other
/// language is a file of translations among the resources.
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

/// Gives an object its texts now and whenever the language changes. Of an object that is no
/// widget the parent is one. `giveTexts` lives as long as the object.
void followLanguage(QObject* owner, std::function<void()> giveTexts);

}  // namespace App
