// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// From now on screen readers see a plot as a chart: its name, the extent of its points, the point
/// that is marked, and that it opens its data as a table. The first call does it.
void instalaAccesoDeGrafica();
