// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Ack.h"
#include "shell/core/steps/Pasos.h"

/// The stack of calls of Ack(m, n), call by call, with the memory of the tool: a film. Both
/// arguments from 0 on; of a run that takes more than some thousands of steps, the first ones.
Pasos pasosDeAck(Ack::Llamada llamada, std::int32_t corte);
