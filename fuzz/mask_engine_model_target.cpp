// The mask engine against a plain model of it: whatever is done to both, they show, give and tell the same.
#include "fuzz_input.h"
#include "textbox/mask_pair.h"

using namespace vornix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int MostSteps = 300;
    fuzz::FuzzInput input(data, size);
    MaskPair pair([&input](int bound) { return input.Between(0, bound - 1); });
    for (int step = 0; step < MostSteps && !input.IsEmpty(); ++step) {
        pair.Step();
        const std::string difference = pair.Difference();
        fuzz::Require(difference.empty(), (difference + "\n" + pair.Story()).c_str());
    }
    return 0;
}
