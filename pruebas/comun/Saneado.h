#pragma once

namespace analizador {

// Whether the program is built with a sanitizer that needs much memory and time of its own. g++ says so by
// macros, clang by features.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool SANEADO = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr bool SANEADO = true;
#else
constexpr bool SANEADO = false;
#endif
#else
constexpr bool SANEADO = false;
#endif

}  // namespace analizador
