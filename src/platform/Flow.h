// Whether something that waits may go on.
#pragma once

namespace talvora {

/// The answer to whoever waits or lets events run: with Interrupt a loop must end, since the front
/// has something that cannot be delivered inside it.
enum class Flow { Continue, Interrupt };

} // namespace talvora
