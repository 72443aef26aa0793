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

/// The links of a node in a balanced tree. For internal use.
struct NodeLink
{
    CodeNode* up = nullptr;
    CodeNode* left = nullptr;
    CodeNode* right = nullptr;
};

/// The number of nodes of each kind in a subtree of the chain. For internal use.
struct NodeCounts
{
    unsigned values = 0;
    unsigned frames = 0;
    unsigned animations = 0;
    unsigned rootChildren = 0;
};

/// One node of the parsed view of a code document.
///
/// A node contains no text. It belongs to a line of the document, and to change it, that line is
/// edited. Nodes are linked in two structures: a chain of all nodes in text order, and a tree of
/// parents and children, which the constructors build from the chain. The host's parser creates
/// nodes in `CodeParser::parse()`. They are given up through `release()`. Main thread only.
class ZORV_EXPORT CodeNode
{
public:
    /// Bit values, so that they can be combined in a mask.
    enum Type : unsigned short { Root = 1, Group = 2, Value = 4, Animation = 8, Frame = 16 };

    /// A stop mask that lets only groups and animations pass.
    static constexpr unsigned short StopAtCode = 0xfff5;

    /// Inserts the node into the chain directly behind `previous` and binds it to the line being
    /// parsed. With a null `previous` it has no line.
    CodeNode(Type type, CodeNode* previous);

    /// Leaves the parent first, then the chain.
    virtual ~CodeNode();

    Type type() const { return m_type; }

    /// The line of the node. Invalid if it has none or the line has been deleted.
    QTextBlock block() const { return m_block; }

    /// The parent in the tree, or null.
    ParentCode* parentCode() const { return m_parent; }

    /// The neighbours in the chain, or null.
    CodeNode* previous() const { return m_previous; }
    CodeNode* next() const { return m_next; }

    /// The nearest node of exactly this `type`: upward in the tree, or backward or forward in the
    /// chain. The search ends with null where no node is left, or at a node of another type that is
    /// in `stopMask`. Logarithmic along the chain.
    CodeNode* parent(Type type, unsigned short stopMask) const;
    CodeNode* previous(Type type, unsigned short stopMask) const;
    CodeNode* next(Type type, unsigned short stopMask) const;

    /// The first and last line of the node's text, as block numbers; -1 if the node has no line.
    virtual int firstLine() const;
    virtual int lastLine() const;

    /// The document that contains the node's line, or null.
    virtual CodeDocument* document() const;

    /// Removes the node's text from the document: its whole extent with `all`, otherwise only its
    /// own line. The parser then removes the node, so do not use it afterwards.
    virtual void remove(bool all);

    /// Gives up the node. The host decides how the object is deleted.
    virtual void release() = 0;

    /// Notifies the parent, if there is one, through `ParentCode::childChanged()`.
    virtual void valueChanged(const QVariant& value);

    /// A cursor that selects the node's line with its line end. Null if there is no line.
    QTextCursor select() const;

    /// A cursor that selects all lines of the node, including the last line end.
    QTextCursor selectAll() const;

    /// Replaces the node's line by `text`. A comment in the line is kept, after one blank.
    /// Afterwards the node may have been replaced by another one.
    void change(const QString& text);

    /// True while the line of the node exists. If the line was deleted, the node still exists until
    /// its document processes the next change.
    bool hasLine() const { return m_block.isValid(); }

    /// True if this node comes before `other` in the same chain.
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

    /// Leaves parent and chain.
    void unlink();

protected:
    /// Called after the node's line was deleted and before the node leaves the tree: a parent
    /// passes its children on. Destructors do the same.
    virtual void handOver();

    /// Called for a head whose line is now below a different head. Returns true if a new node at
    /// this place would get the same parent as this one. Then this node is passed to the parser for
    /// updating. The default is true only for animations, which always belong to the root. A group
    /// can override it to avoid moving its children.
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
    int m_endBlock = 0;  // Qt's number of the block for a node created behind this one
    Type m_type;
    unsigned short m_chainMask = 0;
    bool m_isTracked = false;
    unsigned char m_placedBy = Elsewhere;  // for a leaf with the parent that its head implies:
                                           // the type of that head, 0 if none
};

/// The head of a line, given the last node before it: the group or animation that the line belongs
/// to, or null. If the line is itself a head, this is the one above it. Logarithmic.
ZORV_EXPORT CodeNode* lineHead(const CodeNode* previous);

}  // namespace Zorv
