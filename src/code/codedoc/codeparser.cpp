#include "code/codedoc/codeparser.h"

#include "code/codedoc/codeparsersyntax.h"

namespace Zorv {

CodeParser::~CodeParser() = default;
CodeParserSyntax::~CodeParserSyntax() = default;

}  // namespace Zorv
