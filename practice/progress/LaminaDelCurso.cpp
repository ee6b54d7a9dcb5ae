// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/progress/LaminaDelCurso.h"

#include "practice/progress/Curso.h"
#include "practice/progress/Eleccion.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSizeF Caja(152, 46);
constexpr QSizeF Celda(190, 66);
constexpr qreal Letra = 13;

struct Balance
{
    int dominados = 0, todos = 0, repasos = 0, hechos = 0;
};

Balance balanceDe(const QString &leccion, const QHash<QString, Dominio> &dominios, qint64 hoy)
{
    Balance balance;
    for (const QString &clave : clavesDelBanco(leccion)) {
        const Dominio dominio = dominios.value(clave);
        balance.todos += Niveles;
        balance.dominados += dominio.dominado;
        balance.repasos += dominio.tocaRepaso(hoy) ? 1 : 0;
        balance.hechos += dominio.hechos;
    }
    return balance;
}

Tono tonoDe(const Balance &balance)
{
    if (balance.todos > 0 && balance.dominados == balance.todos)
        return {Tono::Acierto};
    return {balance.hechos > 0 ? Tono::Acento : Tono::Suave};
}

QString enPalabras(const Balance &balance)
{
    if (balance.todos == 0)
        return Traduce(u"sin ejercicios"_s);
    const QString niveles =
        Traduce(u"%1 de %2 niveles"_s).arg(balance.dominados).arg(balance.todos);
    return balance.repasos == 0 ? niveles
                                : niveles + Traduce(u", repasos: %1"_s).arg(balance.repasos);
}

QRectF cajaDe(const LeccionDelCurso &leccion)
{
    return {QPointF(leccion.sitio.x() * Celda.width(), leccion.sitio.y() * Celda.height()), Caja};
}

/// From the edge of a box to the edge of another one.
void une(Lamina &lamina, const QRectF &desde, const QRectF &hasta)
{
    if (desde.right() < hasta.left())
        lamina.flecha({desde.right(), desde.center().y()}, {hasta.left(), hasta.center().y()},
                      {Tono::Suave});
    else
        lamina.flecha({desde.center().x(), desde.bottom()}, {hasta.center().x(), hasta.top()},
                      {Tono::Suave});
}

/// Whether a lesson builds on that one, at once or by way of others.
bool descansa(const LeccionDelCurso &leccion, const QString &antes)
{
    return std::any_of(leccion.antes.begin(), leccion.antes.end(), [&](const QString &otra) {
        return otra == antes || descansa(*leccionDelCurso(otra), antes);
    });
}

/// The lessons right before one: without those that already come before another of them.
QStringList justoAntes(const LeccionDelCurso &leccion)
{
    QStringList antes = leccion.antes;
    antes.removeIf([&](const QString &una) {
        return std::any_of(leccion.antes.begin(), leccion.antes.end(), [&](const QString &otra) {
            return descansa(*leccionDelCurso(otra), una);
        });
    });
    return antes;
}

QString descripcion(const QHash<QString, Dominio> &dominios, qint64 hoy)
{
    QStringList frases;
    for (const LeccionDelCurso &leccion : curso()) {
        QStringList antes;
        for (const QString &clave : leccion.antes)
            antes << Traduce(leccionDelCurso(clave)->titulo);
        QString frase =
            Traduce(leccion.titulo) + u": "_s + enPalabras(balanceDe(leccion.clave, dominios, hoy));
        if (!antes.isEmpty())
            frase += u"; "_s + Traduce(u"antes conviene %1"_s).arg(antes.join(u", "_s));
        frases << frase;
    }
    return Traduce(u"Mapa del curso"_s) + u". "_s + frases.join(u". "_s);
}

} // namespace

Lamina laminaDelCurso(const QHash<QString, Dominio> &dominios, qint64 hoy)
{
    Lamina lamina(descripcion(dominios, hoy));
    for (const LeccionDelCurso &leccion : curso()) {
        for (const QString &antes : justoAntes(leccion))
            une(lamina, cajaDe(*leccionDelCurso(antes)), cajaDe(leccion));
    }
    for (const LeccionDelCurso &leccion : curso()) {
        const Balance balance = balanceDe(leccion.clave, dominios, hoy);
        const Tono tono = tonoDe(balance);
        const QRectF caja = cajaDe(leccion);
        lamina.rectangulo(caja, tono); // not filled: the texts in it are in ink
        lamina.texto({caja.left(), caja.top() + 7, caja.width(), Letra}, Traduce(leccion.titulo));
        lamina.texto({caja.left(), caja.top() + 26, caja.width(), Letra - 1}, enPalabras(balance));
    }
    return lamina;
}

QString cuandoToca(const Dominio &dominio, qint64 hoy)
{
    if (!dominio.repaso)
        return u"—"_s;
    const qint64 faltan = *dominio.repaso - hoy;
    if (faltan <= 0)
        return Traduce(u"hoy"_s);
    return faltan == 1 ? Traduce(u"mañana"_s) : Traduce(u"en %1 días"_s).arg(faltan);
}
