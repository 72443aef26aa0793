#pragma once

#include "assets/pixelcodec.h"
#include "cache/streamcachedata.h"

namespace Family {

class PixelStore;

/// Packed pixels in a cache, shared by all sprites that show them. Made by a `PixelStore`, and
/// kept by `PixelRef`.
class PixelData final : public Zorv::StreamCacheData
{
public:
    PixelData(PixelStore* store, Zorv::StreamCache* home);
    PixelData(PixelStore* store, Zorv::StreamCache* home, const QString& fileName);
    ~PixelData() override;

    PixelFormat format;
    quint64 pixelCrc = 0;   ///< of the unpacked rows, as a file tells it
    quint64 streamCrc = 0;  ///< of the packed bytes; 0 if it was not read from a file
    QByteArray record;     ///< that of the file, if it is broken; the pixels are then not to be had
    bool isGuess = false;  ///< where the bytes of a broken record lie was guessed
    quint32 order = 0;     ///< where its stream stands in the file among others

protected:
    void disposeData() override;

private:
    PixelStore* m_store;
};

/// A share of `PixelData`: counts it, and gives it back.
class PixelRef
{
public:
    PixelRef() = default;

    /// Takes over the one share that new data has.
    explicit PixelRef(PixelData* data) : m_data(data) {}
    PixelRef(const PixelRef& other) : m_data(other.m_data)
    {
        if (m_data) {
            ++m_data->refCount;
        }
    }
    PixelRef(PixelRef&& other) noexcept : m_data(other.m_data) { other.m_data = nullptr; }
    PixelRef& operator=(PixelRef other) noexcept
    {
        std::swap(m_data, other.m_data);
        return *this;
    }
    ~PixelRef()
    {
        if (m_data) {
            m_data->release();
        }
    }

    PixelData* get() const { return m_data; }
    PixelData* operator->() const { return m_data; }
    explicit operator bool() const { return m_data; }
    friend bool operator==(const PixelRef& a, const PixelRef& b) { return a.m_data == b.m_data; }
    friend bool operator!=(const PixelRef& a, const PixelRef& b) { return a.m_data != b.m_data; }

private:
    PixelData* m_data = nullptr;
};

}  // namespace Family
