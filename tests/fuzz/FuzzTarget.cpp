#include "tests/RandomSession.h"

// The fuzzer calls it with inputs of its own making; what a session throws ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tumble::runSession({data, size});
    return 0;
}
