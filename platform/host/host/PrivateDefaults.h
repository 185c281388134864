// Keeps GNUstep away from the files of the person who runs the program.
#pragma once

namespace host {

/// From now on GNUstep's own user defaults live in a temporary folder that goes when the process ends.
/// Once is enough; before anything of Foundation is used.
void usePrivateDefaults();

} // namespace host
