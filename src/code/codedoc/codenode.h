#pragma once

#include "zorv_export.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QVariant>

namespace Zorv {

class CodeDocument;
class CodeNode;
class CodeNodeList;
class NodeChain;
class ParentCode;
class RootCode;

/// A node's place in a balanced tree; the library's own bookkeeping.
struct NodeLink
{
    CodeNode* up = nullptr;
    CodeNode* left = nullptr;
    CodeNode* right = nullptr;
};

/// How many nodes of a kind a part of the chain holds; likewise.
struct NodeCounts
{
    unsigned values = 0;
    unsigned frames = 0;
    unsigned animations = 0;
    unsigned rootChildren = 0;
};

/// One node of the parsed view of a code document.
///
/// A node holds no text: it stands on a line of the document, and a change to
/// it is an edit of that line. Two structures run through the nodes: a chain of
/// all nodes in text order, and a tree of parents and children, which the
/// constructors build from the chain. Nodes are made by the host's grammar
/// inside `CodeParser::parse()` and given up through `release()`. Main thread
/// only.
class ZORV_EXPORT CodeNode
{
public:
    /// Bit values, so that a mask can test several.
    enum Type : unsigned short { Root = 1, Group = 2, Value = 4, Animation = 8, Frame = 16 };

    /// A stop mask that lets only groups and animations pass.
    static constexpr unsigned short StopAtCode = 0xfff5;

    /// Links the node into the chain right behind `previous` and takes the
    /// line that is being parsed as its own; with a null `previous` it has no
    /// line.
    CodeNode(Type type, CodeNode* previous);

    /// Leaves the parent first, then the chain.
    virtual ~CodeNode();

    Type type() const { return m_type; }

    /// The line of the node; invalid if it has none or the line is gone.
    QTextBlock block() const { return m_block; }

    /// The parent in the tree, or null.
    ParentCode* parentCode() const { return m_parent; }

    /// The neighbours in the chain, or null.
    CodeNode* previous() const { return m_previous; }
    CodeNode* next() const { return m_next; }

    /// The nearest node of exactly `type` upward in the tree, or backward or
    /// forward in the chain. Null at the end of the walk, or where a node of
    /// another type has a bit in common with `stopMask`. Along the chain the
    /// cost is logarithmic.
    CodeNode* parent(Type type, unsigned short stopMask) const;
    CodeNode* previous(Type type, unsigned short stopMask) const;
    CodeNode* next(Type type, unsigned short stopMask) const;

    /// The first and the last line of the node's text, as block numbers; -1 for
    /// a node without a line.
    virtual int firstLine() const;
    virtual int lastLine() const;

    /// The document of the node's line, or null.
    virtual CodeDocument* document() const;

    /// Takes the node's text out of the document: its whole extent with `all`,
    /// else its own line. The parser then takes the node away: it must not be
    /// used afterwards.
    virtual void remove(bool all);

    /// Gives the node up; how it dies is the host's.
    virtual void release() = 0;

    /// Tells the parent, if there is one, through `ParentCode::childChanged()`.
    virtual void valueChanged(const QVariant& value);

    /// A cursor on the node's line with its line end; a null cursor without one.
    QTextCursor select() const;

    /// A cursor on all lines of the node, the last line end included.
    QTextCursor selectAll() const;

    /// Replaces the node's line by `text`. A comment on the line stays, behind
    /// one blank. Afterwards the node may have been replaced by another.
    void change(const QString& text);

    /// True while the line of the node exists. A node whose line was deleted
    /// lives on until its document has gone on to the next step.
    bool hasLine() const { return m_block.isValid(); }

    /// For a walk that counts: true if this node stands before `other` in the
    /// same chain.
    bool precedes(const CodeNode* other) const;

private:
    friend class CodeBlockData;
    friend class CodeDocument;
    friend class CodeDocumentPrivate;
    friend class CodeNodeList;
    friend class NodeChain;
    friend class ParentCode;
    friend class RootCode;
    friend struct ChainTraits;
    friend struct ChildTraits;

    CodeNode(const CodeNode&) = delete;
    CodeNode& operator=(const CodeNode&) = delete;

    /// Leaves parent and chain; a grammar's nodes do more through leaveTree().
    void unlink();

protected:
    /// Called when the node's line has gone and before the node leaves the
    /// tree: a parent hands its children on. Destructors do the same.
    virtual void handOver();

    /// A document asks this of a head whose line stands under another head than
    /// before: true if a new node there would have the parent that this one has.
    /// Then the grammar gets this one to bring it up to date. False at first, and
    /// true for an animation, which always joins the root; a group that knows
    /// better saves its children a move.
    virtual bool isInPlace() const;

private:
    static constexpr unsigned char Elsewhere = 0xff;

    QTextBlock m_block;
    ParentCode* m_parent = nullptr;
    CodeNode* m_previous = nullptr;
    CodeNode* m_next = nullptr;
    NodeLink m_chain;
    NodeLink m_sibling;
    NodeCounts m_counts;
    unsigned m_siblings = 1;
    int m_endBlock = 0;  // Qt's number of the block that a node behind this one gets
    Type m_type;
    unsigned short m_chainMask = 0;
    bool m_isTracked = false;
    unsigned char m_placedBy = Elsewhere;  // of a leaf with the parent that its head gives it:
                                           // the type of that head, 0 without one
};

/// The head of a line, from the last node before it: the group or animation that the line
/// stands under, null for none. A line that is a head itself stands under the one above.
/// Logarithmic.
ZORV_EXPORT CodeNode* lineHead(const CodeNode* previous);

}  // namespace Zorv
