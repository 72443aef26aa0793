#pragma once

/// Lets go of what is owned by whoever calls `release()`.
struct Release
{
    template <class Object>
    void operator()(Object* object) const
    {
        object->release();
    }
};
