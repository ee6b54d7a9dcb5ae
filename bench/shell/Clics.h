// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class FormPrincipal;

/// Starts real runs by their buttons, each again and again for some seconds, while another thread
/// posts clicks on their window; prints a line a run: clicks, and how long the middle one, the 99th
/// of a hundred and the slowest waited, in milliseconds.
void mideClics(FormPrincipal &principal);
