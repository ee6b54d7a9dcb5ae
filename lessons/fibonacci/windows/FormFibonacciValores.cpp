#include "lessons/fibonacci/windows/FormFibonacciValores.h"

#include "shell/core/EnteroAcotado.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCalculo.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormFibonacciValores.h"

#include <QScopeGuard>

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

FormFibonacciValores::FormFibonacciValores(Corrida &corrida, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormFibonacciValores>()),
      m_corrida(corrida),
      m_comparacion({u"n"_s, Traduce(u"Método"_s), Traduce(u"Llamadas"_s), Traduce(u"Sumas"_s),
                     Traduce(u"Productos"_s), Traduce(u"Tiempo"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblDefinicion, 1.15);
    muestraCalcular(ui->cmdCalcular);
    m_comparacion.ponColumnasDeTexto({1});
    ui->FlexComparacion->setModel(&m_comparacion);
    ui->FlexComparacion->ponTextoVacio(
        Traduce(u"Calcule el mismo número por los tres métodos y compare"_s));
    new ColumnasRepartidas(ui->FlexComparacion);
    m_pantalla.setInterval(PasoDePantalla);

    conecta(ui->cmdCalcular, &QPushButton::clicked, this, &FormFibonacciValores::cmdCalcular_Click);
    conecta(ui->cmdBorrar, &QPushButton::clicked, this, &FormFibonacciValores::cmdBorrar_Click);
    conecta(ui->TxtN, &QLineEdit::returnPressed, this, &FormFibonacciValores::empieza);
    conecta(ui->TxtN, &QLineEdit::textChanged, ui->lblAviso, &QLabel::clear);
    for (auto *opcion : {ui->optMetodo_0, ui->optMetodo_1, ui->optMetodo_2})
        conecta(opcion, &QRadioButton::clicked, this, &FormFibonacciValores::optMetodo_Click);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormFibonacciValores::muestraAvance);
    optMetodo_Click();
}

FormFibonacciValores::~FormFibonacciValores() = default;

QAbstractButton *FormFibonacciValores::botonDeParada() const
{
    return m_calculando ? ui->cmdCalcular : nullptr;
}

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

void FormFibonacciValores::cmdCalcular_Click()
{
    if (!m_calculando) {
        empieza();
        return;
    }
    m_corrida.detener();
    m_calculando = false;
    muestraCalcular(ui->cmdCalcular);
}

void FormFibonacciValores::empieza()
{
    // A run that was told to stop must see the flag before it is cleared for another.
    if (m_calculando || m_corrida.enCurso())
        return;
    const auto n = evaluaEnteroAcotado(ui->TxtN->text(), 0, cotaDe(metodo()));
    if (!n) {
        rechaza(ui->TxtN, ui->lblAviso,
                Traduce(u"Escriba un número entero de 0 a %1."_s)
                    .arg(formatoEntero(qint64{cotaDe(metodo())})));
        return;
    }
    calcula(metodo(), *n);
}

void FormFibonacciValores::calcula(MetodoFibonacci metodo, int n)
{
    m_corrida.permitir();
    const Corrida::Tramo tramo(m_corrida);
    const auto alFinal = qScopeGuard([this] { termina(); });
    m_calculando = true;
    muestraDetener(ui->cmdCalcular);
    ui->lblAviso->clear();
    ui->txtValor->setText({});
    m_pantalla.start();
    m_reloj.start();
    const QString valor = m_calculo.calcula(metodo, n, m_corrida);
    const qint64 tiempo = m_reloj.nsecsElapsed();
    muestraValor(n, valor);
    const Esfuerzo &esfuerzo = m_calculo.esfuerzo();
    m_comparacion.agrega(
        {formatoEntero(qint64{n}), nombreDe(metodo), formatoEntero(esfuerzo.llamadas),
         formatoEntero(esfuerzo.sumas), formatoEntero(esfuerzo.productos),
         valor.isEmpty() ? Traduce(u"detenido"_s) : textoDeDuracion(static_cast<double>(tiempo))});
    ui->FlexComparacion->scrollToBottom();
}

void FormFibonacciValores::termina()
{
    m_pantalla.stop();
    m_calculando = false;
    muestraCalcular(ui->cmdCalcular);
}

void FormFibonacciValores::muestraAvance()
{
    const Esfuerzo &esfuerzo = m_calculo.esfuerzo();
    ui->lblCifras->setText(
        esfuerzo.llamadas > 0
            ? Traduce(u"Calculando… Llamadas: %1"_s).arg(formatoEntero(esfuerzo.llamadas))
            : Traduce(u"Calculando… Sumas: %1"_s).arg(formatoEntero(esfuerzo.sumas)));
}

void FormFibonacciValores::muestraValor(int n, const QString &valor)
{
    ui->txtValor->setText(valor);
    ui->lblCifras->setText(
        valor.isEmpty() ? Traduce(u"Cálculo detenido"_s)
                        : Traduce(u"Cifras de F(%1): %2"_s)
                              .arg(formatoEntero(qint64{n}), formatoEntero(qint64{valor.size()})));
}
