#include "ai/analysis_log.h"

#include "platform/platform.h"

namespace mf {

void AILog(const std::string& line) { Plat().AnalysisLine(line); }

}  // namespace mf
