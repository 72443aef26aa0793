#pragma once

#include <utility>

namespace Family {

/// A smart pointer for data that counts its users, such as `Zorv::StreamCacheData`: adds one user
/// and removes it at the end.
template <class Data>
class AssetRef
{
public:
    AssetRef() = default;

    /// Takes ownership of the initial reference of new data.
    explicit AssetRef(Data* data) : m_data(data) {}
    AssetRef(const AssetRef& other) : m_data(other.m_data)
    {
        if (m_data) {
            ++m_data->refCount;
        }
    }
    AssetRef(AssetRef&& other) noexcept : m_data(std::exchange(other.m_data, nullptr)) {}
    AssetRef& operator=(AssetRef other) noexcept
    {
        std::swap(m_data, other.m_data);
        return *this;
    }
    ~AssetRef()
    {
        if (m_data) {
            m_data->release();
        }
    }

    Data* get() const { return m_data; }
    Data* operator->() const { return m_data; }
    explicit operator bool() const { return m_data; }
    friend bool operator==(const AssetRef& a, const AssetRef& b) { return a.m_data == b.m_data; }
    friend bool operator!=(const AssetRef& a, const AssetRef& b) { return a.m_data != b.m_data; }

private:
    Data* m_data = nullptr;
};

}  // namespace Family
