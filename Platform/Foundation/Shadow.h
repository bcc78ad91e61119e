// Whether our programs are built with a sanitizer that maps far more memory than they use: no limit of it can hold
// then.
#pragma once

namespace foundation {

#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kHasShadow = true;
#else
inline constexpr bool kHasShadow = false;
#endif

} // namespace foundation
