// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How many random inputs a check tries. Under a sanitizer, which costs ten times as much, a tenth
/// of them: it looks for faults of memory, which the first inputs show.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int Sorteos = 1'000;
#else
inline constexpr int Sorteos = 10'000;
#endif
