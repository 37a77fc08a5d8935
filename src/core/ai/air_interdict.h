// The computer's aircraft hunt what they can see.
#pragma once

namespace mf {

// Every own air unit on an own hex with readiness above 60, whatever front
// it serves, floods its reach as for an interdiction and strikes the first
// hex in map order within reach whose first slot holds a foreign unit, no
// SHQ, of a regime not at peace, on a hex in sight. The only stage of the
// computer player that asks what is in sight.
void AIAirInterdict();

}  // namespace mf
