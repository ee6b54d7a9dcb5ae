// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/TablaConHuecos.h"

#include "bignum/gateway/Azar.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/answers/LectorDeRespuestas.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Tables may pad a number, as the codes of characters are; answers never are.
QString sinCeros(QString numero)
{
    static const QRegularExpression ceros(u"^(-?)0+(?=[0-9])"_s);
    return numero.replace(ceros, u"\\1"_s);
}

} // namespace

TablaConHuecos::TablaConHuecos(const QStringList &cabecera, const QList<QStringList> &filas,
                               PorQue porQue)
    : m_cabecera(cabecera), m_porQue(std::move(porQue))
{
    for (const QStringList &fila : filas) {
        QList<Celda> celdas;
        for (const QString &numero : fila)
            celdas << Celda{numero, numero.isEmpty()};
        m_celdas << celdas;
    }
}

void TablaConHuecos::fija(qsizetype fila, qsizetype columna)
{
    m_celdas[fila][columna].fija = true;
}

TablaConHuecos::Estado TablaConHuecos::estado(qsizetype fila, qsizetype columna) const
{
    return m_celdas[fila][columna].estado;
}

QString TablaConHuecos::texto(qsizetype fila, qsizetype columna) const
{
    const Celda &celda = m_celdas[fila][columna];
    const bool seLee = celda.estado == Estado::ALaVista || celda.estado == Estado::Acertada;
    return seLee ? celda.numero : celda.respuesta;
}

QList<TablaConHuecos::Celda *> TablaConHuecos::ocultables()
{
    QList<Celda *> celdas;
    for (QList<Celda> &fila : m_celdas) {
        for (Celda &celda : fila) {
            if (!celda.fija && celda.estado == Estado::ALaVista)
                celdas << &celda;
        }
    }
    return celdas;
}

void TablaConHuecos::ocultaAlAzar(qsizetype cuantas)
{
    QList<Celda *> quedan = ocultables();
    for (; cuantas > 0 && !quedan.isEmpty(); --cuantas) {
        const auto cual = AleatorioEntre(0, static_cast<std::int32_t>(quedan.size()) - 1);
        quedan.takeAt(cual)->estado = Estado::Oculta;
    }
}

void TablaConHuecos::ocultaTodas()
{
    muestraTodas();
    for (Celda *celda : ocultables())
        celda->estado = Estado::Oculta;
}

void TablaConHuecos::muestraTodas()
{
    for (QList<Celda> &fila : m_celdas) {
        for (Celda &celda : fila)
            celda = {celda.numero, celda.fija};
    }
}

void TablaConHuecos::oculta(qsizetype fila, qsizetype columna)
{
    Celda &celda = m_celdas[fila][columna];
    if (!celda.fija)
        celda.estado = Estado::Oculta;
}

qsizetype TablaConHuecos::pendientes() const
{
    qsizetype cuantas = 0;
    for (const QList<Celda> &fila : m_celdas) {
        for (const Celda &celda : fila)
            cuantas += celda.estado == Estado::Oculta || celda.estado == Estado::Fallada ? 1 : 0;
    }
    return cuantas;
}

TablaConHuecos::Estado TablaConHuecos::responde(qsizetype fila, qsizetype columna,
                                                const QString &respuesta)
{
    Celda &celda = m_celdas[fila][columna];
    if (celda.estado == Estado::ALaVista)
        return celda.estado;
    celda.respuesta = respuesta.trimmed();
    const RespuestaLeida leida = leeRespuesta(celda.respuesta, {});
    if (leida.estado != RespuestaLeida::Leida) {
        celda.estado = Estado::Oculta;
        celda.veredicto = leida.leo;
    } else if (leida.numeros.constFirst() == sinCeros(celda.numero)) {
        celda.estado = Estado::Acertada;
        celda.veredicto = Traduce(u"Correcto: ahí va %1."_s).arg(celda.numero);
    } else {
        celda.estado = Estado::Fallada;
        celda.veredicto = Traduce(u"Ahí no va %1."_s).arg(celda.respuesta);
    }
    return celda.estado;
}

QString TablaConHuecos::veredicto(qsizetype fila, qsizetype columna) const
{
    return m_celdas[fila][columna].veredicto;
}

QString TablaConHuecos::porQue(qsizetype fila, qsizetype columna) const
{
    return m_porQue ? m_porQue(fila, columna) : QString();
}
