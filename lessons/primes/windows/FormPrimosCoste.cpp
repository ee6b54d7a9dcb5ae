// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimosCoste.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Textos.h"
#include "ui_FormPrimosCoste.h"

#include <QHeaderView>
#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

QString nombre(int algoritmo)
{
    static const std::array nombres = {u"Ingenuo"_s, u"Mejorado"_s, u"Avanzado"_s};
    return Traduce(nombres.at(static_cast<std::size_t>(algoritmo)));
}

} // namespace

FormPrimosCoste::FormPrimosCoste(FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormPrimosCoste>()),
      m_modelo({Traduce(u"bits"_s), u"n"_s, nombre(0), nombre(1), nombre(2)}),
      m_tareas(this, leccion->parada())
{
    ui->setupUi(this);
    traduceVentana(this);
    m_boton =
        new BotonDeCorrida(ui->cmdCoste, BotonDeCorrida::calcular(), BotonDeCorrida::detener());
    ui->FlexCoste->setModel(&m_modelo);
    ui->FlexCoste->ponTextoVacio(Traduce(
        u"Pulse «Calcular» para medir lo que tarda cada algoritmo con números cada vez mayores"_s));
    ui->FlexCoste->setTextElideMode(Qt::ElideMiddle);
    ui->FlexCoste->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui->FlexCoste->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    ui->PicCoste->ponTextoVacio(Traduce(u"Aquí aparecerá el tiempo de cada algoritmo"_s));
    ui->PicCoste->ponEjes(u"log₁₀ n"_s, Traduce(u"log₁₀ del tiempo en ns"_s));
    ui->PicCoste->ponLectura(ui->lblPuntoCoste);
    conecta(ui->cmdCoste, &QPushButton::clicked, this, &FormPrimosCoste::cmdCoste_Click);
    conecta(ui->PicCoste, &Grafica::senalado, this, &FormPrimosCoste::PicCoste_Senalado);
}

FormPrimosCoste::~FormPrimosCoste() = default;

Tarea<> FormPrimosCoste::cmdCoste_Click()
{
    if (m_boton->enMarcha())
        m_boton->detiene();
    else
        co_await mide();
}

void FormPrimosCoste::limpia()
{
    m_medidas.clear();
    m_puntos.clear();
    m_modelo.ponFilas({});
    ui->PicCoste->borra();
    ui->lblAjusteCoste->clear();
    ui->lblPuntoCoste->clear();
}

Tarea<> FormPrimosCoste::mide()
{
    limpia();
    const auto marcha = m_boton->empieza(m_tareas.billete());
    const Billete billete = marcha.billete();
    CosteDeFactorizar carrera(ui->cmbNumeros->currentIndex() == 0
                                  ? CosteDeFactorizar::Numeros::DosPrimos
                                  : CosteDeFactorizar::Numeros::Primos);
    while (!carrera.terminado()) {
        muestraNeutro(ui->lblAvanceCoste, Traduce(u"Números de %1 bits…"_s).arg(carrera.bits()));
        co_await billete.cederYa();
        const auto medida = co_await carrera.siguiente(billete);
        if (!marcha.vigente())
            co_return;
        if (!medida) {
            muestraNeutro(ui->lblAvanceCoste,
                          Traduce(u"Detenido en %1 bits."_s).arg(carrera.bits()));
            co_return;
        }
        agrega(*medida);
        representa();
    }
    muestraNeutro(ui->lblAvanceCoste, desenlace(carrera));
}

/// Why the algorithms ended where they did.
QString FormPrimosCoste::desenlace(const CosteDeFactorizar &carrera) const
{
    QStringList partes;
    for (int algoritmo = 0; algoritmo < MedidaDeCoste::Algoritmos; ++algoritmo) {
        if (carrera.retirada(algoritmo) == CosteDeFactorizar::Retirada::Tiempo)
            partes << Traduce(u"%1: tarda demasiado."_s).arg(nombre(algoritmo));
        else if (carrera.retirada(algoritmo) == CosteDeFactorizar::Retirada::Tamano)
            partes << Traduce(u"%1: no admite números mayores."_s).arg(nombre(algoritmo));
    }
    return Traduce(u"Terminado."_s) + u' ' + partes.join(u' ');
}

void FormPrimosCoste::agrega(const MedidaDeCoste &medida)
{
    QStringList fila{QString::number(medida.bits), formatoEntero(medida.numero)};
    for (int algoritmo = 0; algoritmo < MedidaDeCoste::Algoritmos; ++algoritmo) {
        const auto tiempo = medida.nanosegundos.at(static_cast<std::size_t>(algoritmo));
        fila << (tiempo ? textoDeDuracion(*tiempo) : u"–"_s);
        if (tiempo)
            m_puntos.append({m_medidas.size(), algoritmo});
    }
    m_medidas << medida;
    m_modelo.ponFilas(QList(m_modelo.filas()) << fila); // and the columns are measured anew
    ui->FlexCoste->scrollToBottom();
}

SerieDeGrafica FormPrimosCoste::serie(int algoritmo) const
{
    SerieDeGrafica serie{nombre(algoritmo), {}};
    for (const MedidaDeCoste &medida : m_medidas) {
        if (const auto tiempo = medida.nanosegundos.at(static_cast<std::size_t>(algoritmo)))
            serie.puntos << QPointF(medida.logNumero(), std::log10(*tiempo));
    }
    if (const auto recta = ajustaPotencial(serie.puntos)) {
        const qreal desde = serie.puntos.first().x();
        const qreal hasta = serie.puntos.last().x();
        serie.rectaDesde = {desde, recta->altura(desde)};
        serie.rectaHasta = {hasta, recta->altura(hasta)};
    }
    return serie;
}

QString FormPrimosCoste::ajuste(int algoritmo) const
{
    const auto recta = ajustaPotencial(serie(algoritmo).puntos);
    if (!recta)
        return {};
    return Traduce(u"%1: tiempo ≈ c · n^%2 (R² = %3)"_s)
        .arg(nombre(algoritmo), formatoDecimal(recta->exponente, 2), formatoDecimal(recta->r2, 3));
}

void FormPrimosCoste::representa()
{
    QList<SerieDeGrafica> series;
    QStringList ajustes;
    QRectF limites(2, 2, 3, 2);
    for (int algoritmo = 0; algoritmo < MedidaDeCoste::Algoritmos; ++algoritmo) {
        series << serie(algoritmo);
        if (const QString suyo = ajuste(algoritmo); !suyo.isEmpty())
            ajustes << suyo;
        for (const QPointF &punto : std::as_const(series.last().puntos)) {
            limites.setLeft(std::min(limites.left(), std::floor(punto.x())));
            limites.setRight(std::max(limites.right(), std::ceil(punto.x())));
            limites.setTop(std::min(limites.top(), std::floor(punto.y())));
            limites.setBottom(std::max(limites.bottom(), std::ceil(punto.y())));
        }
    }
    ui->PicCoste->ponSeries(series, limites);
    ui->lblAjusteCoste->setText(ajustes.join(u'\n'));
}

void FormPrimosCoste::PicCoste_Senalado(int indice)
{
    if (indice < 0) {
        ui->lblPuntoCoste->clear();
        return;
    }
    const Punto &punto = m_puntos.at(indice);
    const MedidaDeCoste &medida = m_medidas.at(punto.medida);
    ui->lblPuntoCoste->setText(Traduce(u"%1, n = %2: %3"_s)
                                   .arg(nombre(punto.algoritmo), formatoAbreviado(medida.numero),
                                        textoDeDuracion(*medida.nanosegundos.at(
                                            static_cast<std::size_t>(punto.algoritmo)))));
}
