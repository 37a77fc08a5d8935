#include "ai/sorted_list.h"

#include <utility>

#include "ai/ai_state.h"

namespace mf {

void ListClear() {
  for (int i = 0; i <= kListCap; ++i) {
    AI.ListA[i] = 0;
    AI.ListB[i] = 0;
    AI.ListScore[i] = 0;
  }
  AI.ListCount = 0;
}

void ListAdd(Long a, Long b, Long score) {
  if (AI.ListCount == 0) {
    AI.ListA[1] = a;
    AI.ListB[1] = b;
    AI.ListScore[1] = score;
    AI.ListCount = 1;
    return;
  }
  if (AI.ListCount < kListCap) ++AI.ListCount;
  // Walk down the list carrying the entry; whatever a better score pushes
  // out is carried on, and what is carried past the end falls away. A blank
  // slot holds score 0, so a carried score of 0 or less never fills it.
  for (int i = 1; i <= AI.ListCount; ++i) {
    if (score > AI.ListScore[i]) {
      std::swap(a, AI.ListA[i]);
      std::swap(b, AI.ListB[i]);
      std::swap(score, AI.ListScore[i]);
    }
  }
}

}  // namespace mf
