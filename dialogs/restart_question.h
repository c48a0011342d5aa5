// The question before changes are stored that need a restart.
#pragma once

namespace pelmar {

/// Tells the user that the changes need a restart of the host, and asks whether to store them.
bool AskToStoreUntilRestart();

} // namespace pelmar
