// SPDX-License-Identifier: GPL-3.0-or-later

// Stands in for a program of Windows that Wine does not have: notes down, in the file named by
// TESTIGO, how it was called.

#include <cstdio>
#include <cstdlib>

int main(int argc, char *argv[])
{
    std::FILE *archivo = std::fopen(std::getenv("TESTIGO"), "a");
    if (!archivo)
        return 1;
    for (int i = 0; i < argc; ++i)
        std::fprintf(archivo, "%s\n", argv[i]);
    return std::fclose(archivo);
}
