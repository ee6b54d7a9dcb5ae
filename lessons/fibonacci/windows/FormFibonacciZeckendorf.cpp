// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/fibonacci/windows/FormFibonacciZeckendorf.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/fibonacci/PasosDeZeckendorf.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormFibonacciZeckendorf.h"

#include <QTextOption>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Maximo = u"1"_s + QString(200, u'0');

/// The number that an expression stands for; empty for anything but a positive whole one up to the
/// bound. The notice of a bound does not come, for it would show all of its 201 digits.
QString positivoDe(const QString &expresion)
{
    const auto valor = leeEntero(expresion, {.minimo = u"1"_s});
    return valor && !EsMayor(Maximo, *valor) ? *valor : QString();
}

} // namespace

FormFibonacciZeckendorf::FormFibonacciZeckendorf(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormFibonacciZeckendorf>()),
      m_panelDePasos(new PanelDePasos(u"Zeckendorf"_s, this)),
      m_modelo(
          {Traduce(u"Resto"_s), u"k"_s, Traduce(u"El mayor F(k) que cabe"_s), Traduce(u"Queda"_s)})
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdSiguiente->setIcon(ImgSiguiente());
    ui->FlexPasos->setModel(&m_modelo);
    ui->FlexPasos->ponTextoVacio(Traduce(u"Aquí aparecerán los pasos, un sumando por fila"_s));
    new ColumnasRepartidas(ui->FlexPasos);
    // A sum is read summand by summand, other than a single long number.
    ui->txtSuma->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);

    conecta(ui->cmdSiguiente, &QPushButton::clicked, this,
            &FormFibonacciZeckendorf::cmdSiguiente_Click);
    conecta(ui->TxtNumero, &QLineEdit::returnPressed, this,
            &FormFibonacciZeckendorf::cmdSiguiente_Click);
    conecta(ui->cmdTodo, &QPushButton::clicked, this, &FormFibonacciZeckendorf::cmdTodo_Click);
    conecta(ui->cmdEmpezar, &QPushButton::clicked, this,
            &FormFibonacciZeckendorf::cmdEmpezar_Click);
    conecta(ui->TxtNumero, &QLineEdit::textChanged, this,
            &FormFibonacciZeckendorf::cmdEmpezar_Click);
}

FormFibonacciZeckendorf::~FormFibonacciZeckendorf() = default;

void FormFibonacciZeckendorf::cmdEmpezar_Click()
{
    ui->lblAvisoZeckendorf->clear();
    m_numero.clear();
    m_pasos.clear();
    avanzaHasta(0);
}

void FormFibonacciZeckendorf::cmdSiguiente_Click()
{
    if (hayNumero())
        avanzaHasta(std::min(m_dados + 1, m_pasos.size()));
}

void FormFibonacciZeckendorf::cmdTodo_Click()
{
    if (hayNumero())
        avanzaHasta(m_pasos.size());
}

/// Takes the number of the field at the first step; without one, the focus is back in the field.
bool FormFibonacciZeckendorf::hayNumero()
{
    if (!m_pasos.isEmpty())
        return true;
    m_numero = positivoDe(ui->TxtNumero->text());
    if (m_numero.isEmpty()) {
        rechaza(ui->TxtNumero, ui->lblAvisoZeckendorf,
                Traduce(u"Escriba un número entero positivo, hasta 10^200."_s));
        return false;
    }
    m_pasos = representacionZeckendorf(m_numero);
    return true;
}

void FormFibonacciZeckendorf::avanzaHasta(qsizetype pasos)
{
    m_dados = pasos;
    QList<QStringList> filas;
    for (const PasoZeckendorf &paso : m_pasos.first(pasos)) {
        filas << QStringList{formatoEntero(paso.resto), QString::number(paso.indice),
                             formatoEntero(paso.sumando), formatoEntero(paso.queda)};
    }
    m_modelo.ponFilas(filas);
    ui->FlexPasos->scrollToBottom();
    muestraSuma();
}

QString FormFibonacciZeckendorf::resumen() const
{
    if (m_pasos.size() == 1)
        return Traduce(u"Es un número de Fibonacci."_s);
    return Traduce(u"Completa: %1 sumandos, y no hay dos consecutivos."_s).arg(m_pasos.size());
}

void FormFibonacciZeckendorf::muestraSuma()
{
    if (m_dados == 0) {
        ui->txtSuma->setText({});
        ui->txtCodigo->setText({});
        m_panelDePasos->pon({});
        return;
    }
    QStringList sumandos;
    QStringList nombres;
    for (const PasoZeckendorf &paso : m_pasos.first(m_dados)) {
        sumandos << paso.sumando;
        nombres << u"F(%1)"_s.arg(paso.indice);
    }
    const bool completa = m_dados == m_pasos.size();
    if (!completa)
        sumandos << u"(%1)"_s.arg(m_pasos.at(m_dados).resto);
    QString texto = m_numero + u" = "_s + sumandos.join(u" + "_s);
    if (completa)
        texto += u" = "_s + nombres.join(u" + "_s);
    ui->txtSuma->setText(texto);
    if (completa)
        muestraVeredicto(ui->lblAvisoZeckendorf, true, resumen());
    ui->txtCodigo->setText(completa ? codigoZeckendorf(m_pasos) : QString());
    // Not before: the student may want to find the next summand.
    m_panelDePasos->pon(completa ? pasosDeZeckendorf(m_pasos) : Pasos());
}
