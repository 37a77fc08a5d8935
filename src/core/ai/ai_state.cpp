#include "ai/ai_state.h"

namespace mf {

AIRec AI;

void ResetAIState() { AI = AIRec{}; }

}  // namespace mf
