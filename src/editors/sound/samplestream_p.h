#pragma once

#include <QByteArray>
#include <QIODevice>

namespace Zorv {

/// The bytes of a sound as a stream for a device. A looping stream starts over at its end and never
/// runs dry.
class SampleStream : public QIODevice
{
    Q_OBJECT

public:
    explicit SampleStream(QObject* parent = nullptr);

    /// Sets other bytes, a whole number of frames, and rewinds.
    void setBytes(const QByteArray& bytes);
    void rewind() { m_place = 0; }
    void setLooping(bool isLooping) { m_loops = isLooping; }
    bool isLooping() const { return m_loops; }

    /// The byte position of the next read.
    int place() const { return m_place; }
    bool isAtEnd() const { return m_place >= m_bytes.size() && !m_loops; }

    bool isSequential() const override { return true; }
    bool atEnd() const override { return isAtEnd(); }
    qint64 bytesAvailable() const override;

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    int m_place = 0;
    bool m_loops = false;
};

}  // namespace Zorv
