#include <cstddef>
#include <cstdint>

#include "fuzz/FuzzTarget.h"

/// The entry point of the fuzzer: called once per input, for the program's only target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t byteCount)
{
    const Loadwick::FuzzTarget &target = *Loadwick::FuzzTarget::all().at(0);
    target.check({reinterpret_cast<const char *>(bytes), byteCount});
    return 0;
}
