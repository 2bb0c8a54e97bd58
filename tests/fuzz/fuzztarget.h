#ifndef FUZZTARGET_H
#define FUZZTARGET_H

#include <cstdint>
#include <cstdlib>

/// What every run of a fuzz target must find true.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

#endif
