#pragma once

#include "image/canvas/imagelayer.h"

#include <utility>

namespace Zorv {

/// A counted reference to a layer.
class LayerRef
{
public:
    LayerRef() = default;
    explicit LayerRef(ImageLayer* layer) : m_layer(layer)
    {
        if (layer) {
            layer->addRef();
        }
    }
    LayerRef(const LayerRef& other) : LayerRef(other.m_layer) {}
    LayerRef(LayerRef&& other) noexcept : m_layer(std::exchange(other.m_layer, nullptr)) {}
    ~LayerRef()
    {
        if (m_layer) {
            m_layer->release();
        }
    }
    LayerRef& operator=(LayerRef other) noexcept
    {
        std::swap(m_layer, other.m_layer);
        return *this;
    }

    /// Takes over a reference that was already counted.
    static LayerRef adopt(ImageLayer* layer)
    {
        LayerRef ref;
        ref.m_layer = layer;
        return ref;
    }

    ImageLayer* get() const { return m_layer; }
    ImageLayer* operator->() const { return m_layer; }
    explicit operator bool() const { return m_layer; }

private:
    ImageLayer* m_layer = nullptr;
};

}  // namespace Zorv
