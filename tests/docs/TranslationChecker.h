#pragma once

#include <QString>
#include <QStringList>

/// What is wrong with the folder `translation` as a translation of the pages in `original`: pages
/// and figures that only one of them has, places that links of the original lead to and the
/// translation lacks, figures that differ in more than their words. Each fault names its file;
/// empty when fit.
QStringList translationFaults(const QString &original, const QString &translation);

/// The ISO 639 code of the language that a folder of translated pages is named after in English
/// ("en" for "English"), or an empty text where there is no such language.
QString languageOfFolder(const QString &name);
