// Makes the radio that a command line asks for.
#pragma once

#include "simulator/Options.h"
#include "simulator/Radio.h"
#include "simulator/Result.h"

#include <memory>

namespace Simulator {

/// Makes the radio with the contents of its files. `link` must outlive it.
[[nodiscard]] Failure MakeRadio(const Options& options, RadioLink& link, std::unique_ptr<Radio>& radio);

} // namespace Simulator
