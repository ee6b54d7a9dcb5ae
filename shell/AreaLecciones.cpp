#include "shell/AreaLecciones.h"

#include "shell/Aspecto.h"
#include "shell/ModGlobal.h"

#include <QMdiSubWindow>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

AreaLecciones::AreaLecciones(QWidget *padre) : QMdiArea(padre)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void AreaLecciones::paintEvent(QPaintEvent *suceso)
{
    QMdiArea::paintEvent(suceso);
    const auto ventanas = subWindowList();
    if (std::any_of(ventanas.begin(), ventanas.end(),
                    [](const QMdiSubWindow *v) { return v->isVisible(); }))
        return;
    QPainter pintor(viewport());
    QFont letra = font();
    letra.setPointSizeF(letra.pointSizeF() * 1.3);
    pintor.setFont(letra);
    pintor.setPen(Aspecto::atenuado());
    pintor.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                    Traduce(u"Elija una lección en el menú"_s));
}
