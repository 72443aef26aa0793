#pragma once

#include "zorv_export.h"

#include <QIODevice>
#include <QPointer>

namespace Zorv {

/// Converts 32-bit samples to floats from -1 to 1, for devices that accept only floats. Reading
/// advances the source, which is not owned.
class ZORV_EXPORT FloatStream : public QIODevice
{
    Q_OBJECT

public:
    explicit FloatStream(QObject* parent = nullptr);

    void setSource(QIODevice* source) { m_source = source; }

    bool isSequential() const override { return true; }
    bool atEnd() const override { return !m_source || m_source->atEnd(); }
    qint64 bytesAvailable() const override { return m_source ? m_source->bytesAvailable() : 0; }

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QPointer<QIODevice> m_source;
};

}  // namespace Zorv
