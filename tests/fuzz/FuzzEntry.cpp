#include <cstddef>
#include <cstdint>

#include "fuzz/FuzzTarget.h"

/// Where the fuzzer comes in: once for each input, with the one target of the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t byteCount)
{
    const Loadwick::FuzzTarget &target = *Loadwick::FuzzTarget::all().at(0);
    target.check({reinterpret_cast<const char *>(bytes), byteCount});
    return 0;
}
