#include "minical/windows/FormCalcLetra.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

QFont letraDeHoja()
{
    QFont letra;
    letra.setFamilies({u"Courier New"_s, u"Liberation Mono"_s, u"Cousine"_s, u"Nimbus Mono PS"_s,
                       u"monospace"_s});
    letra.setStyleHint(QFont::Monospace);
    return letra;
}
