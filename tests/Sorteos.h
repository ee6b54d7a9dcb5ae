// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How many random inputs a check tries. Under a sanitizer, which costs ten times as much, a tenth
/// of them: it looks for faults of memory, which the first inputs show. So does Windows, tried
/// under Wine, where every text that is looked up looks for a file, and at some length.
#if defined(__SANITIZE_ADDRESS__) || defined(_WIN32)
#define NUMORA_POCOS_SORTEOS
#elif defined(__has_feature) // clang's way to say it
#if __has_feature(address_sanitizer)
#define NUMORA_POCOS_SORTEOS
#endif
#endif

#if defined(NUMORA_POCOS_SORTEOS)
inline constexpr int Sorteos = 1'000;
#else
inline constexpr int Sorteos = 10'000;
#endif
