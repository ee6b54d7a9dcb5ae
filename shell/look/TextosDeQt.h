// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Qt's own texts ("Aceptar", "Opciones:") in Spanish, unless the interface is in another language.
void instalaTextosDeQt();
