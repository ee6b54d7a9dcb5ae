// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/windows/FormFibonacciAureo.h"

#include "lessons/fibonacci/PasosDeFibonacci.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormFibonacciAureo.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int DecimalesDePhi = 40;

QString textoDelError(const CocienteFibonacci &cociente)
{
    return (cociente.porExceso() ? u"+"_s : u"−"_s) + textoDePotencia(cociente.logError);
}

} // namespace

FormFibonacciAureo::FormFibonacciAureo(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormFibonacciAureo>()),
      m_panelDePasos(new PanelDePasos(u"Número áureo"_s, this)),
      m_modelo({u"n"_s, u"F(n)"_s, u"F(n+1)"_s, u"F(n+1) / F(n)"_s, Traduce(u"Error"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->lblPhi->setText(u"φ = (1 + √5) / 2 = "_s + numeroAureo(DecimalesDePhi) + u'…');
    Aspecto::destaca(ui->lblPhi, 1.1);
    ui->cmdAureo->setIcon(Icono(u"CALCULAR"_s));
    m_modelo.ponColumnasDeTexto({3});
    ui->FlexCocientes->setModel(&m_modelo);
    const QString vacio = Traduce(u"Pulse «Calcular» para ver los cocientes"_s);
    ui->FlexCocientes->ponTextoVacio(vacio);
    ui->PicError->ponTextoVacio(vacio);
    ui->FlexCocientes->setTextElideMode(Qt::ElideMiddle);
    ui->PicError->ponEjes(u"n"_s, Traduce(u"log₁₀ del error"_s));
    ui->PicError->ponLectura(ui->lblPunto);
    new ColumnasRepartidas(ui->FlexCocientes);
    ui->reparto->setStretchFactor(0, 3);
    ui->reparto->setStretchFactor(1, 2);
    ui->reparto->setSizes({600, 400});

    conecta(ui->cmdAureo, &QPushButton::clicked, this, &FormFibonacciAureo::cmdAureo_Click);
    conecta(ui->TxtHasta, &QLineEdit::returnPressed, this, &FormFibonacciAureo::cmdAureo_Click);
    conecta(ui->TxtHasta, &QLineEdit::textChanged, this, &FormFibonacciAureo::TxtHasta_Change);
    conecta(ui->PicError, &Grafica::senalado, this, &FormFibonacciAureo::senalaPunto);
    cmdAureo_Click();
}

FormFibonacciAureo::~FormFibonacciAureo() = default;

/// Where there is no room for them side by side, the plot stands below the table.
void FormFibonacciAureo::resizeEvent(QResizeEvent *suceso)
{
    QWidget::resizeEvent(suceso);
    const bool cabenJuntos = width() > fontMetrics().horizontalAdvance(u'0') * 110;
    ui->reparto->setOrientation(cabenJuntos ? Qt::Horizontal : Qt::Vertical);
}

/// Table and plot belong to the number in the field.
void FormFibonacciAureo::TxtHasta_Change()
{
    ui->lblAvisoAureo->clear();
    m_cocientes.clear();
    muestra();
    ui->PicError->borra();
    ui->lblPunto->clear();
}

void FormFibonacciAureo::cmdAureo_Click()
{
    ui->lblAvisoAureo->clear();
    const auto hasta = leeEntero(ui->TxtHasta->text(), 2, MaximoDeCocientes);
    if (!hasta) {
        TxtHasta_Change();
        rechaza(ui->TxtHasta, ui->lblAvisoAureo,
                Traduce(u"Escriba un número entero de 2 a %1."_s).arg(MaximoDeCocientes));
        return;
    }
    m_cocientes = cocientesFibonacci(*hasta);
    muestra();
    representa();
}

void FormFibonacciAureo::muestra()
{
    QList<QStringList> filas;
    for (const CocienteFibonacci &cociente : std::as_const(m_cocientes)) {
        filas << QStringList{formatoEntero(qint64{cociente.n}), formatoEntero(cociente.f),
                             formatoEntero(cociente.siguiente), cociente.cociente,
                             textoDelError(cociente)};
    }
    m_modelo.ponFilas(filas);
    m_panelDePasos->pon(pasosDeCocientes(static_cast<int>(m_cocientes.size())));
}

void FormFibonacciAureo::representa()
{
    QList<QPointF> puntos;
    for (const CocienteFibonacci &cociente : std::as_const(m_cocientes))
        puntos << QPointF(cociente.n, cociente.logError);
    const qreal minimo = std::floor(m_cocientes.last().logError);
    ui->PicError->ponPuntos(puntos, QRectF(0, minimo, m_cocientes.last().n, -minimo));
    senalaPunto(-1);
}

void FormFibonacciAureo::senalaPunto(int indice)
{
    if (m_cocientes.isEmpty())
        return;
    ui->lblPunto->setText(
        indice < 0 ? Traduce(u"Los puntos están casi en una recta: cada paso divide el error por "
                             u"φ² ≈ %1."_s)
                         .arg(formatoDecimal(2.618, 3))
                   : Traduce(u"n = %1: error %2"_s)
                         .arg(QString::number(m_cocientes.at(indice).n),
                              textoDelError(m_cocientes.at(indice))));
}
