/// Reads documents and says what is wrong with them.
#ifndef ZANDIC_TOOL_CHECK_RUN_H
#define ZANDIC_TOOL_CHECK_RUN_H

#include <string>
#include <vector>

#include "CheckPlan.h"
#include "Finding.h"
#include "zandic.hpp"

namespace tool {

/// What a check gives.
struct CheckResult {
    std::vector<std::string> documents;  ///< those that were checked, sorted; not what they only use
    Findings findings;  ///< sorted by place, each once; a cause is the number of another one in this list
};

/// Reads the documents of \p plan and whatever they use. The reader says what makes a load fail, the rules
/// look at what it accepts. Of packages that are only used the errors are told and not the warnings. The
/// dictionary, which must be empty, is left empty: nothing stays loaded, whatever went wrong.
CheckResult Check(const zandic::Dictionary& dictionary, CheckPlan plan);

}  // namespace tool

#endif
