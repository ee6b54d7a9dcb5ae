// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class FormPrincipal;
class Programa;

/// Lets the page that holds the program speak to it: a changed address, and the end of the visit.
/// To be called once; the program has to outlive the page.
void abrePuerta(Programa *programa);

/// The main window of the program behind the door; null before it is there.
FormPrincipal *principalDeLaPuerta();
