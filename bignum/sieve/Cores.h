// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace bignum {

/// The cores that this process may run on, 1 at least.
unsigned availableCores();

} // namespace bignum
