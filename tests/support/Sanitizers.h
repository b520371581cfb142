#pragma once

namespace Loadwick {

/// Whether this build is instrumented: memory and time then say nothing about the product.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool isSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif
#else
inline constexpr bool isSanitized = false;
#endif

} // namespace Loadwick
