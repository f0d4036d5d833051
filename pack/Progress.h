// How far a long piece of work is.
#pragma once

#include <functional>
#include <string_view>

namespace talvora::pack {

/// Is told the name of each step as it begins.
using Progress = std::function<void(std::string_view step)>;

} // namespace talvora::pack
