// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What a child process of the benchmark does. Each prints one number on its standard output, or a
/// table, and ends.
namespace hijo {

/// A bare Qt program: an empty window, up to its first paint. Prints its resident memory in KiB.
int desnudo(int argc, char *argv[]);

/// The program as main() starts it, up to the first paint of the splash.
int presentacion(int argc, char *argv[]);

/// Opens each lesson once and five times more; prints the median of those five for the slowest
/// lesson, in milliseconds.
int lecciones(int argc, char *argv[]);

/// Opens every lesson; prints the resident memory in KiB.
int memoria(int argc, char *argv[]);

/// Runs a loop that yields while another thread asks for attention; prints the longest wait in
/// milliseconds.
int atencion(int argc, char *argv[]);

/// Prints how long clicks wait during the runs of the lessons; see Clics.h.
int clics(int argc, char *argv[]);

} // namespace hijo
