#include "tests/RandomSession.h"

// Called by the fuzzer. An exception ends the process, which the fuzzer reports.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tumble::runSession({data, size});
    return 0;
}
