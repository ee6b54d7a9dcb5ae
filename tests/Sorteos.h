// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// How many random inputs a check tries. Where nothing is optimised, as under the sanitizers, which
/// costs ten times as much, a tenth of them: faults of memory show with the first inputs. So does
/// Windows, tried under Wine, where every text that is looked up looks for a file, and at some
/// length.
#if defined(__OPTIMIZE__) && !defined(_WIN32)
inline constexpr int Sorteos = 10'000;
#else
inline constexpr int Sorteos = 1'000;
#endif
