// Libraries that lie beside the program and are loaded when they are first needed: what they link,
// the start does not pay for.
#pragma once

namespace talvora {

/// A function of the library of a name, such as "talvora-voices", which is loaded for good. Null
/// when that is not there, or something that it needs is not: standard error then says why there is
/// no `deed` ("sound").
[[nodiscard]] void* functionOfModule(const char* module, const char* function, const char* deed);

} // namespace talvora
