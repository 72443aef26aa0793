#pragma once

#include <QHash>
#include <QString>

namespace Zorv {
class CodeNode;
}

namespace Family {

class FamilyDocument;

/// The path of a node, as docs/grammar.md tells it: "constants.life",
/// "animation:200/frame:3/attack:0". Empty for a node that has none (a box
/// without a frame). Linear in the number of its brothers.
QString nodePath(const Zorv::CodeNode* node);

/// The paths of all nodes of a document at once, in linear time.
QHash<const Zorv::CodeNode*, QString> nodePaths(const FamilyDocument* document);

/// The node that a path names. A path to a part of a node ("…/offset", "…/name")
/// gives the node, and the part in `part`. Null for a path that names nothing;
/// `error` then takes what was expected, with near names.
Zorv::CodeNode* nodeAt(const FamilyDocument* document, const QString& path, QString* part = nullptr,
                       QString* error = nullptr);

/// The value that a path names, as the code has it but without quotes and
/// escapes. A null string, and `error`, for a path without a value.
QString getValue(const FamilyDocument* document, const QString& path, QString* error);

/// Writes a value in the text, in one step of undo. `text` is as `getValue()`
/// gives it. True if the document holds the value now: nothing is edited if it
/// did before. False, with `error` and without any change, for an unknown path
/// or a text that does not fit.
bool setValue(FamilyDocument* document, const QString& path, const QString& text, QString* error);

/// "group", "subgroup", "value", "animation", "frame" or "box".
QString nodeKind(const Zorv::CodeNode* node);

/// One line for lists: "life = 1000", "200,0".
QString nodeLabel(const Zorv::CodeNode* node);

}  // namespace Family
