// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/windows/FormFibonacciValores.h"

#include "lessons/fibonacci/PasosDeFibonacci.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormFibonacciValores.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto PasoDePantalla = 50ms;

QString nombreDe(MetodoFibonacci metodo)
{
    switch (metodo) {
    case MetodoFibonacci::Definicion:
        return Traduce(u"Definición"_s);
    case MetodoFibonacci::Iteracion:
        return Traduce(u"Iteración"_s);
    case MetodoFibonacci::Duplicacion:
        return Traduce(u"Duplicación"_s);
    }
    return {};
}

QString reglaDe(MetodoFibonacci metodo)
{
    switch (metodo) {
    case MetodoFibonacci::Definicion:
        return Traduce(u"Cada llamada con n ≥ 2 hace otras dos, para n − 1 y para n − 2."_s);
    case MetodoFibonacci::Iteracion:
        return Traduce(u"Desde F(0) y F(1) se suman cada vez los dos últimos: n − 1 sumas."_s);
    case MetodoFibonacci::Duplicacion:
        return Traduce(u"F(2k) = F(k) · (2F(k+1) − F(k)) y F(2k+1) = F(k)² + F(k+1)²: un paso por "
                       u"cada cifra binaria de n."_s);
    }
    return {};
}

} // namespace

FormFibonacciValores::FormFibonacciValores(FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormFibonacciValores>()),
      m_panelDePasos(new PanelDePasos(u"Valores"_s, this)),
      m_comparacion({u"n"_s, Traduce(u"Método"_s), Traduce(u"Llamadas"_s), Traduce(u"Sumas"_s),
                     Traduce(u"Productos"_s), Traduce(u"Tiempo"_s)}),
      m_tareas(this, leccion->parada())
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblDefinicion, 1.15);
    m_boton =
        new BotonDeCorrida(ui->cmdCalcular, BotonDeCorrida::calcular(), BotonDeCorrida::detener());
    m_comparacion.ponColumnasDeTexto({1});
    ui->FlexComparacion->setModel(&m_comparacion);
    ui->FlexComparacion->ponTextoVacio(
        Traduce(u"Calcule el mismo número por los tres métodos y compare"_s));
    new ColumnasRepartidas(ui->FlexComparacion);
    m_pantalla.setInterval(PasoDePantalla);

    conecta(ui->cmdCalcular, &QPushButton::clicked, this, &FormFibonacciValores::cmdCalcular_Click);
    conecta(ui->cmdBorrar, &QPushButton::clicked, this, &FormFibonacciValores::cmdBorrar_Click);
    conecta(ui->TxtN, &QLineEdit::returnPressed, this, &FormFibonacciValores::empieza);
    conecta(ui->TxtN, &QLineEdit::textChanged, this, &FormFibonacciValores::TxtN_Change);
    for (auto *opcion : {ui->optMetodo_0, ui->optMetodo_1, ui->optMetodo_2})
        conecta(opcion, &QRadioButton::clicked, this, &FormFibonacciValores::optMetodo_Click);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormFibonacciValores::muestraAvance);
    conecta(m_boton, &BotonDeCorrida::detenida, this, [this] { m_pantalla.stop(); });
    conecta(m_boton, &BotonDeCorrida::terminada, this, [this] { m_pantalla.stop(); });
    optMetodo_Click();
}

FormFibonacciValores::~FormFibonacciValores() = default;

MetodoFibonacci FormFibonacciValores::metodo() const
{
    if (ui->optMetodo_0->isChecked())
        return MetodoFibonacci::Definicion;
    return ui->optMetodo_1->isChecked() ? MetodoFibonacci::Iteracion : MetodoFibonacci::Duplicacion;
}

/// Another method has another rule, and another bound.
void FormFibonacciValores::optMetodo_Click()
{
    ui->lblRegla->setText(reglaDe(metodo()));
    ui->lblAviso->clear();
}

void FormFibonacciValores::cmdBorrar_Click()
{
    m_comparacion.ponFilas({});
}

/// What stands below belongs to the number in the field; the rows of the comparison bear theirs.
void FormFibonacciValores::TxtN_Change()
{
    ui->lblAviso->clear();
    if (m_boton->enMarcha())
        return;
    ui->txtValor->setText({});
    ui->lblCifras->clear();
    m_panelDePasos->pon({});
}

Tarea<> FormFibonacciValores::cmdCalcular_Click()
{
    if (m_boton->enMarcha()) {
        m_boton->detiene();
        co_return;
    }
    co_await empieza();
}

Tarea<> FormFibonacciValores::empieza()
{
    if (m_boton->enMarcha())
        co_return;
    // What is chosen now holds for the whole run, whatever is clicked meanwhile.
    const MetodoFibonacci elegido = metodo();
    const auto n = leeEntero(ui->TxtN->text(), 0, cotaDe(elegido));
    if (!n) {
        TxtN_Change();
        rechaza(ui->TxtN, ui->lblAviso,
                Traduce(u"Escriba un número entero de 0 a %1."_s)
                    .arg(formatoEntero(qint64{cotaDe(elegido)})));
        co_return;
    }
    ponEnMarcha();
    auto marcha = m_boton->empieza(m_tareas.billete());
    const auto calculo = m_calculo = std::make_shared<CalculoFibonacci>();
    const FibonacciMedido medido = co_await calculo->calcula(elegido, *n, marcha.billete());
    if (!marcha.vigente())
        co_return;
    muestra(elegido, *n, medido);
}

void FormFibonacciValores::ponEnMarcha()
{
    ui->lblAviso->clear();
    ui->txtValor->setText({});
    ui->lblCifras->setText(Traduce(u"Calculando…"_s));
    m_pantalla.start();
}

void FormFibonacciValores::muestraAvance()
{
    if (m_calculo->llamadas() > 0)
        ui->lblCifras->setText(
            Traduce(u"Calculando… Llamadas: %1"_s).arg(formatoEntero(m_calculo->llamadas())));
}

void FormFibonacciValores::muestra(MetodoFibonacci metodo, int n, const FibonacciMedido &medido)
{
    const bool detenido = medido.valor.isEmpty();
    ui->txtValor->setText(medido.valor);
    muestraNeutro(ui->lblCifras, detenido ? Traduce(u"Cálculo detenido"_s)
                                          : Traduce(u"Cifras de F(%1): %2"_s)
                                                .arg(formatoEntero(qint64{n}),
                                                     formatoEntero(qint64{medido.valor.size()})));
    const Esfuerzo &esfuerzo = medido.esfuerzo;
    const auto siAcabo = [&](const QString &texto) { return detenido ? QString() : texto; };
    m_comparacion.agrega(
        {formatoEntero(qint64{n}), nombreDe(metodo), formatoEntero(esfuerzo.llamadas),
         siAcabo(formatoEntero(esfuerzo.sumas)), siAcabo(formatoEntero(esfuerzo.productos)),
         detenido ? Traduce(u"detenido"_s) : textoDeDuracion(medido.nanosegundos)});
    ui->FlexComparacion->scrollToBottom();
    m_panelDePasos->pon(detenido ? Pasos() : pasosDeFibonacci(metodo, n));
}
