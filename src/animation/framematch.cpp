#include "animation/framematch_p.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/framecode.h"

#include <QHash>
#include <QTextBlock>

#include <algorithm>

namespace Zorv {

FrameMatch::FrameMatch(const AnimationCode* animation)
{
    const CodeNode* node = animation ? animation->childAt(0) : nullptr;
    for (; node; node = CodeNodeList::next(node)) {
        if (node->type() == CodeNode::Frame) {
            m_lines.append(qHash(node->block().text()));
        }
    }
}

// A small diff. Equal lines at the start and at the end of both lists are unchanged frames. In
// between, equal lines are paired in order: the first with the first, the second with the second.
// At last, if both lists are equally long, each frame without a partner takes the frame at its old
// index, unless that one is paired already.
QVector<int> FrameMatch::placesIn(const FrameMatch& later) const
{
    const QVector<uint>& then = m_lines;
    const QVector<uint>& now = later.m_lines;
    const int shared = std::min(then.size(), now.size());
    int start = 0;
    while (start < shared && then.at(start) == now.at(start)) {
        ++start;
    }
    int tail = 0;
    while (tail < shared - start && *(then.cend() - 1 - tail) == *(now.cend() - 1 - tail)) {
        ++tail;
    }
    QHash<uint, QVector<int>> free;
    for (int i = now.size() - tail - 1; i >= start; --i) {
        free[now.at(i)].append(i);
    }
    const int shift = now.size() - then.size();
    QVector<int> places(then.size(), -1);
    QVector<bool> isTaken(now.size(), false);
    for (int i = 0; i < then.size(); ++i) {
        const bool isChanged = i >= start && i < then.size() - tail;
        QVector<int>& found = free[then.at(i)];
        places[i] = i < start         ? i
                    : !isChanged      ? i + shift
                    : found.isEmpty() ? -1
                                      : found.takeLast();
        if (places.at(i) >= 0) {
            isTaken[places.at(i)] = true;
        }
    }
    for (int i = start; shift == 0 && i < places.size(); ++i) {
        if (places.at(i) < 0 && !isTaken.at(i)) {
            places[i] = i;
        }
    }
    return places;
}

}  // namespace Zorv
