#pragma once

#include "editors/code/completionmodel.h"

#include <QCoreApplication>
#include <QMap>

class QXmlStreamReader;

namespace Zorv {

/// Reads a file of completion words; docs/formats.md describes the format.
class CompleterFile
{
    Q_DECLARE_TR_FUNCTIONS(Zorv::CompleterFile)

public:
    static constexpr qint64 MostBytes = 4 * 1024 * 1024;
    static constexpr int MostWords = 100000;

    /// False if the file cannot be opened.
    bool read(const QString& fileName);

    /// The error with file, line and column; empty if there is none.
    QString error() const { return m_error; }

    /// The words of each trigger; valid only without an error.
    const QMap<QString, QVector<CompletionWord>>& words() const { return m_words; }

private:
    void parse(const QByteArray& bytes);
    void readRoot(QXmlStreamReader* xml);
    void readWords(QXmlStreamReader* xml);

    QMap<QString, QVector<CompletionWord>> m_words;
    QString m_fileName;
    QString m_error;
    int m_count = 0;
};

}  // namespace Zorv
