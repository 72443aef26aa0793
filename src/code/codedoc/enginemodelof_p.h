#pragma once

namespace Zorv {

class CodeDocument;
class EngineModel;

/// The engine family of a document: that of its project, or without a project that of the host.
/// Null if there is neither.
EngineModel* engineModelOf(const CodeDocument* document);

}  // namespace Zorv
