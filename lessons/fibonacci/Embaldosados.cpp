// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/Embaldosados.h"

#include <numeric>

QList<Embaldosado> embaldosados(int largo)
{
    if (largo <= 0)
        return largo == 0 ? QList<Embaldosado>{Embaldosado()} : QList<Embaldosado>();
    QList<Embaldosado> todos;
    for (const int baldosa : {1, 2}) {
        for (Embaldosado resto : embaldosados(largo - baldosa)) {
            resto.prepend(baldosa);
            todos << resto;
        }
    }
    return todos;
}

bool hayJunta(const Embaldosado &tira, int tras)
{
    int cubierto = 0;
    for (auto baldosa = tira.begin(); baldosa != tira.end() && cubierto < tras; ++baldosa)
        cubierto += *baldosa;
    return cubierto == tras;
}

int ultimoDomino(const Embaldosado &tira)
{
    const qsizetype lugar = tira.lastIndexOf(2);
    return lugar < 0 ? 0 : std::accumulate(tira.begin(), tira.begin() + lugar, 1);
}

Lamina laminaDeTiras(int largo, const QString &descripcion,
                     const std::function<bool(const Embaldosado &)> &destaca)
{
    if (largo < 0 || largo > MayorTira)
        return {};
    constexpr qsizetype PorColumna = 12;
    Lamina lamina(descripcion);
    const QList<Embaldosado> todos = embaldosados(largo);
    for (qsizetype i = 0; i < todos.size(); ++i) {
        const qreal y = static_cast<qreal>(i % PorColumna) * 1.35;
        qreal x = static_cast<qreal>(i / PorColumna) * (largo + 1);
        const bool destacada = destaca(todos[i]);
        for (const int baldosa : todos[i]) {
            lamina.rectangulo(QRectF(x + 0.06, y, baldosa - 0.12, 0.9),
                              destacada ? Tono::serie(baldosa - 1) : Tono{Tono::Suave}, destacada);
            x += baldosa;
        }
    }
    return lamina;
}
