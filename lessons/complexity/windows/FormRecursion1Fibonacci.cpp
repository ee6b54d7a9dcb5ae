#include "lessons/complexity/windows/FormRecursion1Fibonacci.h"

#include "shell/core/EnteroAcotado.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCalculo.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion1Fibonacci.h"

#include <QScopeGuard>
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

FormRecursion1Fibonacci::FormRecursion1Fibonacci(Corrida &corrida, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion1Fibonacci>()),
      m_corrida(corrida),
      m_modelo({u"n"_s, u"F(n)"_s, Traduce(u"Recursiva: llamadas"_s), Traduce(u"tiempo"_s),
                Traduce(u"Con memoria: llamadas"_s), Traduce(u"tiempo"_s),
                Traduce(u"Iterativa: sumas"_s), Traduce(u"tiempo"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    muestraCalcular(ui->cmdMedir);
    ui->FlexMedidas->setModel(&m_modelo);
    ui->FlexMedidas->ponTextoVacio(
        Traduce(u"Pulse «Calcular» para medir lo que tarda cada forma, de n = 1 en adelante"_s));
    new ColumnasRepartidas(ui->FlexMedidas);
    ui->PicCrecimiento->ponTextoVacio(Traduce(u"Aquí aparecerá el crecimiento con n"_s));

    conecta(ui->cmdMedir, &QPushButton::clicked, this, &FormRecursion1Fibonacci::cmdMedir_Click);
    conecta(ui->TxtHasta, &QLineEdit::returnPressed, this, &FormRecursion1Fibonacci::empieza);
    conecta(ui->TxtHasta, &QLineEdit::textChanged, this, &FormRecursion1Fibonacci::TxtHasta_Change);
    for (auto *opcion : {ui->optLlamadas, ui->optTiempo})
        conecta(opcion, &QRadioButton::clicked, this, &FormRecursion1Fibonacci::optMagnitud_Click);
    conecta(ui->PicCrecimiento, &Grafica::senalado, this, &FormRecursion1Fibonacci::senalaPunto);
}

FormRecursion1Fibonacci::~FormRecursion1Fibonacci() = default;

QAbstractButton *FormRecursion1Fibonacci::botonDeParada() const
{
    return m_calculando ? ui->cmdMedir : nullptr;
}

void FormRecursion1Fibonacci::cmdMedir_Click()
{
    if (!m_calculando) {
        empieza();
        return;
    }
    m_corrida.detener();
    m_calculando = false;
    muestraCalcular(ui->cmdMedir);
}

/// A verdict belongs to the number that was refused; the progress of a run stays.
void FormRecursion1Fibonacci::TxtHasta_Change()
{
    if (!m_calculando)
        ui->lblAvance->clear();
}

void FormRecursion1Fibonacci::empieza()
{
    // Another run of the window would be timed along with this one.
    if (m_calculando || m_corrida.enCurso())
        return;
    const auto hasta = evaluaEnteroAcotado(ui->TxtHasta->text(), MenorFinal, MayorFinal);
    if (!hasta) {
        rechaza(ui->TxtHasta, ui->lblAvance,
                Traduce(u"Escriba un número entero de %1 a %2."_s).arg(MenorFinal).arg(MayorFinal));
        return;
    }
    m_corrida.permitir();
    const Corrida::Tramo tramo(m_corrida);
    const auto alFinal = qScopeGuard([this] { termina(); });
    m_calculando = true;
    muestraDetener(ui->cmdMedir);
    mide(*hasta);
}

void FormRecursion1Fibonacci::termina()
{
    m_calculando = false;
    muestraCalcular(ui->cmdMedir);
}

void FormRecursion1Fibonacci::mide(int hasta)
{
    m_recursivas.clear();
    m_modelo.ponFilas({});
    for (int n = 1; n <= hasta; ++n) {
        muestraNeutro(ui->lblAvance, Traduce(u"Calculando F(%1)…"_s).arg(n));
        m_corrida.cederYa();
        if (m_corrida.detenida() || !mideUno(n)) {
            muestraNeutro(ui->lblAvance, Traduce(u"Detenido en n = %1"_s).arg(n));
            return;
        }
        representa();
    }
    ui->lblAvance->clear();
}

/// Times the three forms; false when the run was stopped meanwhile.
bool FormRecursion1Fibonacci::mideUno(int n)
{
    const Medida recursiva = mideFibonacci(FormaDeCalculo::Recursiva, n, m_corrida);
    const Medida memoria = mideFibonacci(FormaDeCalculo::ConMemoria, n, m_corrida);
    const Medida iterativa = mideFibonacci(FormaDeCalculo::Iterativa, n, m_corrida);
    if (m_corrida.detenida())
        return false;
    m_recursivas << recursiva;
    m_modelo.agrega({QString::number(n), formatoEntero(recursiva.valor),
                     formatoEntero(recursiva.pasos), textoDeDuracion(recursiva.nanosegundos),
                     formatoEntero(memoria.pasos), textoDeDuracion(memoria.nanosegundos),
                     formatoEntero(iterativa.pasos), textoDeDuracion(iterativa.nanosegundos)});
    ui->FlexMedidas->scrollToBottom();
    return true;
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
        ui->lblAjuste->setText(Traduce(u"El ajuste necesita al menos tres puntos, desde n = %1."_s)
                                   .arg(PrimeroDelAjuste));
        return;
    }
    const bool esTiempo = ui->optTiempo->isChecked();
    const QString factor =
        esTiempo ? textoDeDuracion(m_ajuste->factor) : formatoDecimal(m_ajuste->factor, 3);
    const QString ajuste =
        esTiempo ? Traduce(u"Ajuste (línea discontinua): T(n) ≈ %1 · %2ⁿ, con R² = %3. Con cada "
                           u"unidad de n, el tiempo se multiplica por %2; en teoría, por "
                           u"φ = 1,618…"_s)
                 : Traduce(u"Ajuste (línea discontinua): L(n) ≈ %1 · %2ⁿ, con R² = %3. Con cada "
                           u"unidad de n, las llamadas se multiplican por %2; en teoría, por "
                           u"φ = 1,618…"_s);
    ui->lblAjuste->setText(
        ajuste.arg(factor, formatoDecimal(m_ajuste->base, 3), formatoDecimal(m_ajuste->r2, 5)));
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
