// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1Fibonacci.h"

#include "lessons/complexity/PasosDeLlamadas.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRecursion1Fibonacci.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MenorFinal = 3;
/// About four thousand million calls: some seconds.
constexpr int MayorFinal = 45;
/// Below, a computation is so short that what surrounds it counts as much.
constexpr int PrimeroDelAjuste = 10;

} // namespace

FormRecursion1Fibonacci::FormRecursion1Fibonacci(FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRecursion1Fibonacci>()),
      m_modelo({u"n"_s, u"F(n)"_s, Traduce(u"Recursiva: llamadas"_s), Traduce(u"tiempo"_s),
                Traduce(u"Con memoria: llamadas"_s), Traduce(u"tiempo"_s),
                Traduce(u"Iterativa: sumas"_s), Traduce(u"tiempo"_s)}),
      m_pasos(new PanelDePasos(u"Fibonacci"_s, this)),
      m_tareas(this, leccion->parada())
{
    ui->setupUi(this);
    traduceVentana(this);
    m_boton =
        new BotonDeCorrida(ui->cmdMedir, BotonDeCorrida::calcular(), BotonDeCorrida::detener());
    ui->FlexMedidas->setModel(&m_modelo);
    ui->FlexMedidas->ponTextoVacio(
        Traduce(u"Pulse «Calcular» para medir lo que tarda cada forma, de n = 1 en adelante"_s));
    new ColumnasRepartidas(ui->FlexMedidas);
    ui->PicCrecimiento->ponTextoVacio(Traduce(u"Aquí aparecerá el crecimiento con n"_s));
    ui->PicCrecimiento->ponLectura(ui->lblPunto);

    conecta(ui->cmdMedir, &QPushButton::clicked, this, &FormRecursion1Fibonacci::cmdMedir_Click);
    conecta(ui->TxtHasta, &QLineEdit::returnPressed, this, &FormRecursion1Fibonacci::empieza);
    conecta(ui->TxtHasta, &QLineEdit::textChanged, this, &FormRecursion1Fibonacci::TxtHasta_Change);
    for (auto *opcion : {ui->optLlamadas, ui->optTiempo})
        conecta(opcion, &QRadioButton::clicked, this, &FormRecursion1Fibonacci::optMagnitud_Click);
    conecta(ui->PicCrecimiento, &Grafica::senalado, this, &FormRecursion1Fibonacci::senalaPunto);
}

FormRecursion1Fibonacci::~FormRecursion1Fibonacci() = default;

Tarea<> FormRecursion1Fibonacci::cmdMedir_Click()
{
    if (m_boton->enMarcha())
        m_boton->detiene();
    else
        co_await empieza();
}

/// What was measured, or refused, belongs to the number in the field; the progress of a run stays.
void FormRecursion1Fibonacci::TxtHasta_Change()
{
    if (m_boton->enMarcha())
        return;
    ui->lblAvance->clear();
    limpia();
}

Tarea<> FormRecursion1Fibonacci::empieza()
{
    if (m_boton->enMarcha())
        co_return;
    const auto hasta = leeEntero(ui->TxtHasta->text(), MenorFinal, MayorFinal);
    limpia();
    if (!hasta) {
        rechaza(ui->TxtHasta, ui->lblAvance,
                Traduce(u"Escriba un número entero de %1 a %2."_s).arg(MenorFinal).arg(MayorFinal));
        co_return;
    }
    co_await mide(*hasta);
}

/// Rows, points and what is said of them go together: a mark on the plot is looked up in the rows.
void FormRecursion1Fibonacci::limpia()
{
    m_recursivas.clear();
    m_modelo.ponFilas({});
    ui->PicCrecimiento->borra();
    ui->lblAjuste->clear();
    ui->lblPunto->clear();
    m_pasos->pon({});
}

Tarea<> FormRecursion1Fibonacci::mide(int hasta)
{
    const auto marcha = m_boton->empieza(m_tareas.billete());
    const Billete billete = marcha.billete();
    for (int n = 1; n <= hasta; ++n) {
        muestraNeutro(ui->lblAvance, Traduce(u"Calculando F(%1)…"_s).arg(n));
        co_await billete.cederYa();
        const auto medidas = co_await mideFibonacci(n, billete);
        if (!marcha.vigente())
            co_return;
        if (!medidas) {
            muestraNeutro(ui->lblAvance, Traduce(u"Detenido en n = %1"_s).arg(n));
            co_return;
        }
        agrega(n, *medidas);
        representa();
    }
    ui->lblAvance->clear();
    m_pasos->pon(pasosDeLlamadas(hasta, false));
}

void FormRecursion1Fibonacci::agrega(int n, const MedidasDeFibonacci &medidas)
{
    const auto &[recursiva, memoria, iterativa] = medidas;
    m_recursivas << recursiva;
    m_modelo.agrega({QString::number(n), formatoEntero(recursiva.valor),
                     formatoEntero(recursiva.pasos), textoDeDuracion(recursiva.nanosegundos),
                     formatoEntero(memoria.pasos), textoDeDuracion(memoria.nanosegundos),
                     formatoEntero(iterativa.pasos), textoDeDuracion(iterativa.nanosegundos)});
    ui->FlexMedidas->scrollToBottom();
}

void FormRecursion1Fibonacci::optMagnitud_Click()
{
    if (!m_recursivas.isEmpty())
        representa();
}

double FormRecursion1Fibonacci::magnitud(const Medida &medida) const
{
    return ui->optTiempo->isChecked() ? medida.nanosegundos : static_cast<double>(medida.pasos);
}

void FormRecursion1Fibonacci::representa()
{
    QList<QPointF> puntos;
    QList<QPointF> paraAjuste;
    qreal menor = 0;
    qreal mayor = 1;
    const auto ultimo = static_cast<int>(m_recursivas.size());
    for (int n = 1; n <= ultimo; ++n) {
        const double valor = magnitud(m_recursivas.at(n - 1));
        puntos << QPointF(n, std::log10(valor));
        menor = std::min(menor, puntos.last().y());
        mayor = std::max(mayor, puntos.last().y());
        if (n >= PrimeroDelAjuste)
            paraAjuste << QPointF(n, valor);
    }
    const QRectF limites(QPointF(0, std::floor(menor)), QPointF(ultimo, std::ceil(mayor)));
    ui->PicCrecimiento->ponEjes(u"n"_s,
                                Traduce(ui->optTiempo->isChecked() ? u"log₁₀ del tiempo en ns"_s
                                                                   : u"log₁₀ de las llamadas"_s));
    ui->PicCrecimiento->ponPuntos(puntos, limites);
    m_ajuste = ajustaExponencial(paraAjuste);
    if (m_ajuste) {
        ui->PicCrecimiento->ponRecta(
            {PrimeroDelAjuste, std::log10(m_ajuste->valor(PrimeroDelAjuste))},
            {static_cast<qreal>(ultimo), std::log10(m_ajuste->valor(ultimo))});
    }
    muestraAjuste();
    senalaPunto(-1);
}

void FormRecursion1Fibonacci::muestraAjuste()
{
    if (!m_ajuste) {
        muestraNeutro(ui->lblAjuste,
                      Traduce(u"El ajuste necesita al menos tres puntos, desde n = %1."_s)
                          .arg(PrimeroDelAjuste));
        return;
    }
    const bool esTiempo = ui->optTiempo->isChecked();
    const QString factor =
        esTiempo ? textoDeDuracion(m_ajuste->factor) : formatoDecimal(m_ajuste->factor, 3);
    const QString ajuste =
        esTiempo ? Traduce(u"Ajuste (línea discontinua): T(n) ≈ %1 · %2ⁿ, con R² = %3. Con cada "
                           u"unidad de n, el tiempo se multiplica por %2; en teoría, por "
                           u"φ = %4…"_s)
                 : Traduce(u"Ajuste (línea discontinua): L(n) ≈ %1 · %2ⁿ, con R² = %3. Con cada "
                           u"unidad de n, las llamadas se multiplican por %2; en teoría, por "
                           u"φ = %4…"_s);
    muestraNeutro(ui->lblAjuste,
                  ajuste.arg(factor, formatoDecimal(m_ajuste->base, 3),
                             formatoDecimal(m_ajuste->r2, 5), formatoDecimal(1.618, 3)));
}

void FormRecursion1Fibonacci::senalaPunto(int indice)
{
    if (indice < 0) {
        ui->lblPunto->clear();
        return;
    }
    const Medida &medida = m_recursivas.at(indice);
    ui->lblPunto->setText(u"n = %1: "_s.arg(indice + 1) +
                          (ui->optTiempo->isChecked()
                               ? textoDeDuracion(medida.nanosegundos)
                               : Traduce(u"%1 llamadas"_s).arg(formatoEntero(medida.pasos))));
}
