#pragma once

namespace Zorv {

class CodeDocument;
class EngineModel;

/// The family in whose grammar a document is: that of its project, and outside of a
/// project that of the host. Null without either.
EngineModel* engineModelOf(const CodeDocument* document);

}  // namespace Zorv
