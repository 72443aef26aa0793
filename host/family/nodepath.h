#pragma once

#include <QHash>
#include <QString>

namespace Zorv {
class CodeNode;
}

namespace Family {

class FamilyDocument;

/// The path of a node as described in docs/grammar.md: "constants.life",
/// "animation:200/frame:3/attack:0". Empty for a node without a path (a box without a frame). Takes
/// time linear in the number of siblings.
QString nodePath(const Zorv::CodeNode* node);

/// The paths of all nodes of a document at once, in linear time.
QHash<const Zorv::CodeNode*, QString> nodePaths(const FamilyDocument* document);

/// The node with this path. For a path to a part of a node ("…/offset", "…/name"), returns the node
/// and sets `part`. Null for an unknown path; `error` then says what was expected and suggests
/// similar names.
Zorv::CodeNode* nodeAt(const FamilyDocument* document, const QString& path, QString* part = nullptr,
                       QString* error = nullptr);

/// The value with this path, as in the code but without quotes and escapes. A null string, with
/// `error`, for a path without a value.
QString getValue(const FamilyDocument* document, const QString& path, QString* error);

/// Writes a value into the text as one undo step. `text` has the form that `getValue()` returns.
/// True if the document now has this value; if it already had it, nothing is edited. False, with
/// `error` and without a change, for an unknown path or a text that does not fit.
bool setValue(FamilyDocument* document, const QString& path, const QString& text, QString* error);

/// "group", "subgroup", "value", "animation", "frame" or "box".
QString nodeKind(const Zorv::CodeNode* node);

/// A one-line label for lists: "life = 1000", "200,0".
QString nodeLabel(const Zorv::CodeNode* node);

}  // namespace Family
