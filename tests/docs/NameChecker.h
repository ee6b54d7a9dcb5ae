#pragma once

#include <QString>
#include <QStringList>

/// The tools, fields and buttons that the Spanish text of a page names in «», and that its
/// translation does not name in quotes as the interface does. `texts` is the file with the
/// interface's translations; `section` is its section for that language. What is quoted but is no
/// text of the interface is left alone. Of two texts that differ in their mnemonic alone, either
/// will do.
QStringList nameFaults(const QString &spanish, const QString &translation, const QString &texts,
                       const QString &section);
