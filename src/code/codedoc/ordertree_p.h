#pragma once

#include <QtGlobal>

#include <cstdint>

namespace Zorv {

/// A balanced tree that keeps items in the order in which they were inserted relative to each
/// other.
///
/// The items contain the links, so no search is needed to locate an item, and nothing is allocated.
/// It is a treap: the priority of an item is a hash of its address. `Traits` accesses the links of
/// an item and computes the summary of its subtree:
///
///     static Item*& up(Item*);  static Item*& left(Item*);  static Item*& right(Item*);
///     static bool pull(Item*);   // true if the sum of the subtree has changed
///
/// The root is the item without `up`. A caller that needs it passes a variable that is kept up to
/// date. A null root is an empty tree.
template <class Item, class Traits>
class OrderTree
{
public:
    static Item* rootOf(Item* item)
    {
        while (item && Traits::up(item)) {
            item = Traits::up(item);
        }
        return item;
    }

    static Item* first(Item* root)
    {
        while (root && Traits::left(root)) {
            root = Traits::left(root);
        }
        return root;
    }

    static Item* last(Item* root)
    {
        while (root && Traits::right(root)) {
            root = Traits::right(root);
        }
        return root;
    }

    static Item* next(Item* item)
    {
        if (Traits::right(item)) {
            return first(Traits::right(item));
        }
        Item* up = Traits::up(item);
        while (up && Traits::right(up) == item) {
            item = up;
            up = Traits::up(item);
        }
        return up;
    }

    static Item* previous(Item* item)
    {
        if (Traits::left(item)) {
            return last(Traits::left(item));
        }
        Item* up = Traits::up(item);
        while (up && Traits::left(up) == item) {
            item = up;
            up = Traits::up(item);
        }
        return up;
    }

    /// Inserts `item` directly behind `place`, or first if `place` is null.
    static void insertAfter(Item*& root, Item* place, Item* item)
    {
        Traits::up(item) = Traits::left(item) = Traits::right(item) = nullptr;
        Traits::pull(item);
        if (!root) {
            root = item;
            return;
        }
        if (place && !Traits::right(place)) {
            Traits::right(place) = item;
            Traits::up(item) = place;
        } else {
            Item* leaf = first(place ? Traits::right(place) : root);
            Traits::left(leaf) = item;
            Traits::up(item) = leaf;
        }
        const std::uint64_t own = priority(item);
        while (Traits::up(item) && priority(Traits::up(item)) < own) {
            rotateUp(root, item);
        }
        pullUp(Traits::up(item));
    }

    static void remove(Item*& root, Item* item)
    {
        while (Traits::left(item) || Traits::right(item)) {
            Item* left = Traits::left(item);
            Item* right = Traits::right(item);
            rotateUp(root, !right || (left && priority(left) > priority(right)) ? left : right);
        }
        Item* up = Traits::up(item);
        if (up) {
            (Traits::left(up) == item ? Traits::left(up) : Traits::right(up)) = nullptr;
            Traits::up(item) = nullptr;
        } else {
            root = nullptr;
        }
        pullUp(up);
    }

    /// Call when the contribution of `item` to the summaries has changed.
    static void update(Item* item) { pullUp(item); }

    /// The nearest item strictly before (or behind) `item` for which `own` returns true. `below`
    /// tells if the subtree of an item contains a match.
    template <class Own, class Below>
    static Item* findBackward(Item* item, Own own, Below below)
    {
        if (Item* found = lastMatch(Traits::left(item), own, below)) {
            return found;
        }
        for (Item* up = Traits::up(item); up; item = up, up = Traits::up(item)) {
            if (Traits::right(up) != item) {
                continue;
            }
            if (own(up)) {
                return up;
            }
            if (Item* found = lastMatch(Traits::left(up), own, below)) {
                return found;
            }
        }
        return nullptr;
    }

    template <class Own, class Below>
    static Item* findForward(Item* item, Own own, Below below)
    {
        if (Item* found = firstMatch(Traits::right(item), own, below)) {
            return found;
        }
        for (Item* up = Traits::up(item); up; item = up, up = Traits::up(item)) {
            if (Traits::left(up) != item) {
                continue;
            }
            if (own(up)) {
                return up;
            }
            if (Item* found = firstMatch(Traits::right(up), own, below)) {
                return found;
            }
        }
        return nullptr;
    }

    /// True if `a` comes before `b` in the same tree.
    static bool precedes(Item* a, Item* b)
    {
        int depthA = depth(a);
        int depthB = depth(b);
        int sideA = 0;
        int sideB = 0;
        while (a != b && depthA + depthB > 0) {
            const bool climbA = depthA >= depthB;
            if (climbA) {
                sideA = sideOf(a);
                a = Traits::up(a);
            } else {
                sideB = sideOf(b);
                b = Traits::up(b);
            }
            --(climbA ? depthA : depthB);
        }
        return a == b && sideA < sideB;
    }

private:
    static std::uint64_t priority(const Item* item)
    {
        std::uint64_t x = reinterpret_cast<std::uintptr_t>(item) >> 4;
        x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
        x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
        return x ^ (x >> 31);
    }

    static int depth(Item* item)
    {
        int steps = 0;
        while ((item = Traits::up(item))) {
            ++steps;
        }
        return steps;
    }

    static int sideOf(Item* item) { return Traits::left(Traits::up(item)) == item ? -1 : 1; }

    static void pullUp(Item* item)
    {
        while (item && Traits::pull(item)) {
            item = Traits::up(item);
        }
    }

    static void rotateUp(Item*& root, Item* item)
    {
        Item* up = Traits::up(item);
        Item* above = Traits::up(up);
        const bool isLeft = Traits::left(up) == item;
        Item* middle = isLeft ? Traits::right(item) : Traits::left(item);
        (isLeft ? Traits::left(up) : Traits::right(up)) = middle;
        if (middle) {
            Traits::up(middle) = up;
        }
        (isLeft ? Traits::right(item) : Traits::left(item)) = up;
        Traits::up(up) = item;
        Traits::up(item) = above;
        if (!above) {
            root = item;
        } else {
            (Traits::left(above) == up ? Traits::left(above) : Traits::right(above)) = item;
        }
        Traits::pull(up);
        Traits::pull(item);
    }

    template <class Own, class Below>
    static Item* lastMatch(Item* item, Own own, Below below)
    {
        while (item && below(item)) {
            if (Traits::right(item) && below(Traits::right(item))) {
                item = Traits::right(item);
            } else if (own(item)) {
                return item;
            } else {
                item = Traits::left(item);
            }
        }
        return nullptr;
    }

    template <class Own, class Below>
    static Item* firstMatch(Item* item, Own own, Below below)
    {
        while (item && below(item)) {
            if (Traits::left(item) && below(Traits::left(item))) {
                item = Traits::left(item);
            } else if (own(item)) {
                return item;
            } else {
                item = Traits::right(item);
            }
        }
        return nullptr;
    }
};

}  // namespace Zorv
