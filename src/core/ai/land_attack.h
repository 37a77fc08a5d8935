// The computer player's attacks on land: where its odds are met.
#pragma once

namespace mf {

// Looks at every occupied hex of front f's other area that is neutral or at
// war, weighs what defends it (worth, landscape, the neighbours that back it
// up) against what the own neighbours bring (worth, across a river, against
// fortifications), and attacks the hex where the attack beats the defence by
// odds D by most, with the units of f's own area next to it, at most 18.
// One call makes one attack. A hex taken joins the first attacker's area.
void AILandAttack(int f, double D);

// The defence Q and the attack A that AILandAttack weighs for hex (x, y);
// A is 0 when the hex is not one the computer would attack.
struct AIAttackOdds {
  double Q = 0;
  double A = 0;
};
AIAttackOdds AIWeighAttack(int x, int y);

}  // namespace mf
