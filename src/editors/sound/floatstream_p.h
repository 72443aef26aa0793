#pragma once

#include "zorv_export.h"

#include <QIODevice>
#include <QPointer>

namespace Zorv {

/// Samples of 32 bits as the floats from -1 to 1 that they stand for, for devices that take only
/// those. What is read goes on in the source, which is not owned.
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
