#include "simulator/RadioMaker.h"

#include "simulator/DigitalRadio.h"

#include <utility>

namespace Simulator {

Failure MakeRadio(const Options& options, RadioLink& link, std::unique_ptr<Radio>& radio) {
    if (options.digitalModel) {
        DigitalContents contents;
        if (Failure failure = LoadContents(*options.digitalModel, options.digital, contents))
            return failure;
        radio = std::make_unique<DigitalRadio>(*options.digitalModel, options.digital.habits,
                                               std::move(contents), link);
        return {};
    }
    MemoryList memories;
    if (!options.memoryFile.empty())
        if (Failure failure = LoadMemories(options.memoryFile, *options.model, memories))
            return failure;
    radio = std::make_unique<AnalogRadio>(*options.model, options.habits, std::move(memories), link);
    return {};
}

} // namespace Simulator
