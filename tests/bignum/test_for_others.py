#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""libbignum as others have it: installed into a folder, found by pkg-config, called from C and Python.

Run by CTest, which sets SOURCE and BUILD to the top folders, CC to the C compiler and CMAKE."""
import os
import pathlib
import re
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ["SOURCE"])
EXAMPLES = "share/doc/libbignum-dev/examples"
PROTOTYPE = re.compile(r"BIGNUM_API int32_t (\w+)\(([^)]*)\);")


def output(*command, **variables):
    return subprocess.run([str(word) for word in command], env=os.environ | variables, text=True,
                          check=True, stdout=subprocess.PIPE).stdout


class InstalledLibrary(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = pathlib.Path(folder.name)
        for component in "library", "development":
            output(os.environ["CMAKE"], "--install", os.environ["BUILD"], "--prefix", cls.prefix,
                   "--component", component)
        cls.library = next(cls.prefix.rglob("libbignum.so")).parent
        cls.header = (cls.prefix / "include/bignum/bignum.h").read_text()

    def setting(self, *options):
        return output("pkg-config", *options, "bignum",
                      PKG_CONFIG_PATH=str(self.library / "pkgconfig")).split()

    def test_exports_are_the_interface(self):
        """Nothing else is visible, and the manual page has the same functions with the same arguments."""
        declared = {name: " ".join(arguments.split())
                    for name, arguments in PROTOTYPE.findall(self.header)}
        self.assertEqual(len(declared), self.header.count("BIGNUM_API int32_t"))
        symbols = output("nm", "-D", "--defined-only", self.library / "libbignum.so")
        exported = {line.split()[2].partition("@")[0] for line in symbols.splitlines()}
        self.assertEqual(exported - {"BIGNUM_1"}, set(declared))
        page = (self.prefix / "share/man/man3/libbignum.3").read_text()
        told = {name: ", ".join(re.findall(r'"([^"]*)"', arguments))
                for name, arguments in re.findall(r'\.Ft int32_t\n\.Fn (\w+) (".*")', page)}
        self.assertEqual(told, declared)

    def test_soname_and_version(self):
        facts = output("readelf", "-d", self.library / "libbignum.so")
        self.assertIn("soname: [libbignum.so.1]", facts)
        self.assertNotRegex(facts, "RPATH|RUNPATH")
        version, = self.setting("--modversion")
        self.assertEqual((self.library / "libbignum.so").resolve().name, "libbignum.so." + version)

    def test_examples_run(self):
        program = self.prefix / "factors"
        output(os.environ["CC"], "-std=c99", "-Wall", "-Wextra", "-Wpedantic", "-Werror",
               self.prefix / EXAMPLES / "factors.c", *self.setting("--cflags", "--libs"), "-o", program)
        for command, expected in (
                ([program, "-360"], "2^3, prime, found by trial division\n"
                                    "3^2, prime, found by trial division\n"
                                    "5^1, prime, found by trial division\n3 different factors\n"),
                (["python3", self.prefix / EXAMPLES / "congruences.py"],
                 f"2^127 - 1 over 3/7 = {(2 ** 127 - 1) * 7}/3\n"
                 "x = 2 (mod 3), 3 (mod 5), 2 (mod 7): x = 23\n"
                 "primes from 100 to 130: 101 103 107 109 113 127\n"
                 "x = 0 (mod 4), 1 (mod 6): no solution\n")):
            with self.subTest(command=command[-1]):
                self.assertEqual(output(*command, LD_LIBRARY_PATH=str(self.library)), expected)


if __name__ == "__main__":
    unittest.main()
