// One of the fuzzers as a libFuzzer program: which one, the build says.

#include <cstddef>
#include <cstdint>

#include "pruebas/fuzz/Fuzzers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t longitud) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes as text
    analizador::FUZZER({reinterpret_cast<const char*>(datos), longitud});
    return 0;
}
