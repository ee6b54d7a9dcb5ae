// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QFileDevice;

/// Brings to the disk what was written to an open file, which a full disk or a quota may still
/// refuse; false when it did.
bool llegaAlDisco(QFileDevice &archivo);

/// Leaves an open file to its owner alone, whatever the folder grants; false when the system
/// refuses.
bool soloParaSuDuena(QFileDevice &archivo);
