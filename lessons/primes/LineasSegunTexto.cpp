#include "lessons/primes/LineasSegunTexto.h"

#include "shell/CampoLargo.h"

#include <QAbstractTextDocumentLayout>
#include <QtMath>
#include <algorithm>

void ponLineasSegunTexto(CampoLargo *campo, int minimo, int maximo)
{
    campo->setLineas(minimo);
    // A plain-text document measures its height in lines, and says so when it is resized, too.
    QObject::connect(campo->document()->documentLayout(),
                     &QAbstractTextDocumentLayout::documentSizeChanged, campo,
                     [campo, minimo, maximo](const QSizeF &tamano) {
                         campo->setLineas(std::clamp(qCeil(tamano.height()), minimo, maximo));
                     });
}
